// The functions of the commands. Each runs to the end of its command and returns an ExitCode.
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
