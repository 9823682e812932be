#ifndef PLUGINSEARCH_H
#define PLUGINSEARCH_H

#include <ContractNumbers.h>

class QObject;

/** The object that the host's container knows for the class id and the number, or null. It belongs to its
 * plug-in: look for it each time. */
QObject *FindPluginObject(const char *classId, InterfaceNumber number);

#endif
