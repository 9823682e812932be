#ifndef HOSTEXPORT_H
#define HOSTEXPORT_H

#include <QtGlobal>

/**
 * Marks what the host's shared libraries export: the host-service classes and the SDK function.
 *
 * The mark is the same on both sides. A plug-in refers to these symbols dynamically and never binds them at
 * link time, so whichever definition the process offers first is used: the reference libraries, another
 * host's libraries of the same file names, or a program that defines the symbols itself and exports them from
 * its executable.
 */
#define HOST_EXPORT Q_DECL_EXPORT

#endif
