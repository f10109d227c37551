#pragma once

#include <QString>
#include <QStringList>

/// The options of a start of the window. Commands have their own, see commandline::Arguments.
struct CommandLine
{
    bool help = false;
    bool version = false;
    bool demo = false; ///< run on a simulated site
    QString scene =
        QStringLiteral("office"); ///< of the simulated site: a name, "fleet:N" or the path of a file
    QString error;                ///< describes the first invalid argument in English; empty for none

    /// Reads the arguments up to the first invalid one. `arguments` are those of
    /// QCoreApplication::arguments(), including the name of the application. The scene is not checked.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);

    /// The text of "--help", in English, with a line break at its end.
    [[nodiscard]] static QString usage();
};
