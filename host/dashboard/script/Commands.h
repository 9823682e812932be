#ifndef COMMANDS_H
#define COMMANDS_H

#include "Agent.h"
#include "Arguments.h"
#include "CommandAnswer.h"

/** Does what the command line asks for in the place of a window. */
namespace Commands
{

/**
 * One command after the other; the first that fails is the last. No command of another process comes between
 * those that follow each other and are about the list.
 *
 * @param companion  goes along with an agent.
 */
CommandStatus Run(const Arguments &arguments, const QString &libraryPath, const Agent::Companion &companion);

} // namespace Commands

#endif
