// The functions of the commands, for commands(), which describes each command. Each function checks the
// values of its arguments, runs its command to the end, writes results and errors to the terminal of the
// context, and returns an ExitCode. Main thread; runs the event loop.
#pragma once

namespace commandline {

struct CommandContext;

[[nodiscard]] int runSearch(CommandContext &context);
[[nodiscard]] int runSetAddress(CommandContext &context);
[[nodiscard]] int runInit(CommandContext &context);
[[nodiscard]] int runGet(CommandContext &context);
[[nodiscard]] int runSet(CommandContext &context);
[[nodiscard]] int runCgi(CommandContext &context);
[[nodiscard]] int runSnapshot(CommandContext &context);
[[nodiscard]] int runExport(CommandContext &context);
[[nodiscard]] int runImport(CommandContext &context);
[[nodiscard]] int runUpgrade(CommandContext &context);

} // namespace commandline
