// Commands without a window.
#pragma once

#include <QStringList>

/// Whether the first argument after the name of the application is not an option, so that runCommand() needs
/// no display. Also true for a word that is no command. `arguments` are those of the process.
[[nodiscard]] bool isCommand(const QStringList &arguments);

/// Runs the command in the arguments of the process (isCommand() is true) with the libraries, the stores and
/// the settings of the application. Returns its commandline::ExitCode. Also runs "help", and reports an
/// unknown command. Texts are in English, for scripts. Requires a QCoreApplication. Main thread; runs the
/// event loop.
[[nodiscard]] int runCommand(const QStringList &arguments);

/// The text with the list of commands, in English. `program` is the name of the executable file.
[[nodiscard]] QString commandOverview(const QString &program);
