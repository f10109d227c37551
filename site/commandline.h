#pragma once

#include "site/siteoptions.h"

#include <QString>
#include <QStringList>

namespace site {

struct CommandLine
{
    QString scene = QStringLiteral("office");
    QString interface = QStringLiteral("eth0");
    int mostDevices = 0; ///< the first ones of the scene; 0 for all
    bool lists = false;
    bool help = false;
    SiteOptions options;
    QString error; ///< a sentence; empty on success

    /// `arguments` starts with the name of the program.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
    [[nodiscard]] static QString usage();
};

} // namespace site
