// The command line of ConfigToolsSite.
#pragma once

#include "site/siteoptions.h"

#include <QString>
#include <QStringList>

namespace site {

struct CommandLine
{
    /// The name of a scene ("fleet:N" for N devices), or the path of a scene file.
    QString scene = QStringLiteral("office");
    QString interface = QStringLiteral("eth0"); ///< the network interface that the devices are connected to
    int mostDevices = 0; ///< the site has the first devices of the scene, up to this number; 0 for all
    bool lists = false;  ///< --list: print the devices and their accounts, and exit
    bool help = false;   ///< --help: print usage(), and exit
    SiteOptions options;
    QString error; ///< a text with the invalid argument; empty on success

    /// `arguments` starts with the name of the program.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
    /// The help text: several lines with a line end.
    [[nodiscard]] static QString usage();
};

} // namespace site
