// The commands of the command line: their table, their help, and the start of a command.
#pragma once

#include "commandline/commandcontext.h"

namespace commandline {

/// All commands, in the order of the help.
[[nodiscard]] const std::vector<Command> &commands();

/// The command with this name; null if there is none.
[[nodiscard]] const Command *findCommand(QStringView name);

/// The text with the list of commands, in English. `program` is the name of the executable file.
[[nodiscard]] QString overview(const QString &program);

/// The help of a command in English: its operands, options and exit codes.
[[nodiscard]] QString helpOf(const Command &command, const QString &program);

/// Runs a command to its end and returns its ExitCode. `arguments` have no error and no "--help"; an invalid
/// value gives UsageError. Returns SomeFailed instead if results, or the changes for the file of "--visit",
/// could not be written completely. The arguments, the terminal and the surroundings must outlive the call.
/// Main thread; blocks, and runs the event loop.
[[nodiscard]] int run(const Command &command, const Arguments &arguments, Terminal &terminal,
                      const Surroundings &surroundings);

} // namespace commandline
