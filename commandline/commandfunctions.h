// The functions of the commands, for the table of commands(). Each function checks the values of its
// arguments, runs its command to the end, writes results and errors to the terminal of the context, and
// returns the exit code: 0 all done, 1 some devices failed, were skipped or were not found, or the files of
// the report could not be written, 2 invalid arguments or no password, 3 the work could not start, or the
// file of the export could not be written. Main thread; blocks, and runs the event loop.
#pragma once

namespace commandline {

struct CommandContext;

/// "search": searches for devices, or reads a device list, and prints the devices.
[[nodiscard]] int runSearch(CommandContext &context);
/// "set-address": changes the addresses of devices.
[[nodiscard]] int runSetAddress(CommandContext &context);
/// "init": creates the first account of factory-new devices.
[[nodiscard]] int runInit(CommandContext &context);
/// "get": prints encode, image or system settings of devices.
[[nodiscard]] int runGet(CommandContext &context);
/// "set": changes encode, image or system settings of devices.
[[nodiscard]] int runSet(CommandContext &context);
/// "cgi": sends an HTTP command to devices, or the commands of a workbook.
[[nodiscard]] int runCgi(CommandContext &context);
/// "snapshot": saves an image of each channel.
[[nodiscard]] int runSnapshot(CommandContext &context);
/// "export": writes a device list to a file.
[[nodiscard]] int runExport(CommandContext &context);
/// "import": logs in to the devices of a device list and prints the results.
[[nodiscard]] int runImport(CommandContext &context);
/// "upgrade": upgrades the firmware of devices.
[[nodiscard]] int runUpgrade(CommandContext &context);
/// "report": writes the site report.
[[nodiscard]] int runReport(CommandContext &context);

} // namespace commandline
