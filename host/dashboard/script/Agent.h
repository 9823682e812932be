#ifndef AGENT_H
#define AGENT_H

#include "Arguments.h"
#include "CommandAnswer.h"

/** Keeps the list in effect without a window. */
namespace Agent
{

/**
 * Loads the plug-ins, which do the work by themselves, and returns when the process is asked to end: by
 * SIGTERM, SIGINT or SIGHUP. Each user has one agent at most; windows and commands may work beside it, as all
 * of them take turns.
 */
CommandStatus Run(const Arguments &arguments, const QString &libraryPath);

} // namespace Agent

#endif
