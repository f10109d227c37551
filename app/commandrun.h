// Commands without a window.
#pragma once

#include <QStringList>

/// Whether the arguments of the process start with a command, which needs no display. Also true for a word
/// that is no command.
[[nodiscard]] bool isCommand(const QStringList &arguments);

/// Runs a command with the libraries, the stores and the settings of the application and returns its exit
/// code. Its texts are in English, for scripts. Requires a QCoreApplication. Main thread; runs the event
/// loop.
[[nodiscard]] int runCommand(const QStringList &arguments);

/// The list of commands. `program` is the name of the executable file.
[[nodiscard]] QString commandOverview(const QString &program);
