#pragma once

#include <QString>
#include <QStringList>

/// What the program was asked for when it was started.
struct CommandLine
{
    bool help = false;
    bool version = false;
    bool demo = false;                        ///< run on a simulated site
    QString scene = QStringLiteral("office"); ///< its scene: a name, "fleet:N" or a file
    QString error;                            ///< what cannot be understood, empty if all can

    /// `arguments` as QCoreApplication::arguments() gives them, the program's name first.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);

    [[nodiscard]] static QString usage();
};
