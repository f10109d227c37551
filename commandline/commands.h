// The commands of the command line.
#pragma once

#include "commandline/commandcontext.h"

namespace commandline {

/// All commands, in the order of the help.
[[nodiscard]] const std::vector<Command> &commands();

/// The command with this name; null if there is none.
[[nodiscard]] const Command *findCommand(QStringView name);

/// The list of commands. `program` is the name of the executable file.
[[nodiscard]] QString overview(const QString &program);

/// Operands, options and exit codes of a command.
[[nodiscard]] QString helpOf(const Command &command, const QString &program);

/// Runs a command to its end and returns its exit code. Its arguments must be valid. Runs the event loop.
[[nodiscard]] int run(const Command &command, const Arguments &arguments, Terminal &terminal,
                      const Surroundings &surroundings);

} // namespace commandline
