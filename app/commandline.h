#pragma once

#include <QString>
#include <QStringList>

/// The options of a start of the window. A start with a command ("ConfigTools search ...") does not use them.
struct CommandLine
{
    bool help = false;
    bool version = false;
    bool demo = false; ///< run on a simulated site: the last of "--demo" and "--no-demo" counts
    /// Devices of the simulated site: the name of a built-in scene, "fleet:N" for N devices, or the path of a
    /// scene file.
    QString scene = QStringLiteral("office");
    QString error; ///< describes the first invalid argument in English; empty for none

    /// Reads the arguments up to the first invalid one. `arguments` are those of the process, including the
    /// name of the application. The scene is not checked.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);

    /// The text of "--help", in English, with a line break at its end.
    [[nodiscard]] static QString usage();
};
