// Commands without a window, such as "ConfigTools search".
#pragma once

#include <QStringList>

/// Whether the start is that of a command, without a display: there is an argument after the name of the
/// application, and the first one does not start with "-". Also true for an unknown command. `arguments` are
/// those of the process.
[[nodiscard]] bool isCommand(const QStringList &arguments);

/// Runs the command in the arguments of the process (isCommand() is true) with the libraries, the stores and
/// the settings of the application, and with the standard streams. Returns the exit code of the process: 0
/// all done; 1 at least one device failed, was skipped or was not found, or a result was not written; 2
/// unknown command, invalid arguments or no password; 3 the work could not start, also because of an
/// interruption, or the file of an export was not written (see commandline::ExitCode). Also runs "help".
/// Texts are in English, for scripts. Sets the log filter of the process, and deletes the process-wide
/// CDeviceFactory and CLocalConfig after the command. Requires a QCoreApplication. Main thread; blocks, and
/// runs the event loop.
[[nodiscard]] int runCommand(const QStringList &arguments);

/// Whether the command in the arguments of the process draws text: runCommand() then requires a
/// QGuiApplication, whose platform may be one without a display.
[[nodiscard]] bool commandNeedsFonts(const QStringList &arguments);

/// The text with the list of commands, in English. `program` is the name of the executable file.
[[nodiscard]] QString commandOverview(const QString &program);
