#ifndef AGENT_H
#define AGENT_H

#include "Arguments.h"
#include "CommandAnswer.h"

#include <functional>

class ListKeeper;
class QObject;

/** Keeps the list in effect without a window. */
namespace Agent
{

/** Makes what goes along with an agent and is deleted at its end; null: nothing does. */
typedef std::function<QObject *(ListKeeper *keeper)> Companion;

/**
 * Loads the plug-ins, which do the work by themselves, and returns when the process is asked to end: by
 * SIGTERM, SIGINT or SIGHUP. Each user has one agent at most; windows and commands may work beside it, as all
 * of them take turns.
 */
CommandStatus Run(const Arguments &arguments, const QString &libraryPath, const Companion &companion);

} // namespace Agent

#endif
