// The command line of ConfigToolsSite, the program that serves a simulated site on a network.
#pragma once

#include "site/siteoptions.h"

#include <QString>
#include <QStringList>

namespace site {

/// The arguments of the program, with their defaults.
struct CommandLine
{
    /// The name of a scene ("fleet:N" for N devices), or the path of a scene file.
    QString scene = QStringLiteral("office");
    QString interface = QStringLiteral("eth0"); ///< the network interface that the devices are connected to
    int mostDevices = 0; ///< --devices N (1 or more): only the first N devices of the scene; 0 for all
    bool lists = false;  ///< --list: print the devices and their accounts, and exit
    bool help = false;   ///< --help: print usage(), and exit
    SiteOptions options; ///< --login, --digest, --record and --new-keys
    QString error;       ///< the problem of the first invalid argument, in English; empty on success

    /// Reads the arguments up to the first invalid one; `error` is set then. `arguments` starts with the name
    /// of the program. The value of an option is the next argument, or follows "=". It opens no scene and
    /// checks no interface.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
    /// The help text in English: several lines, the last one with a line end.
    [[nodiscard]] static QString usage();
};

} // namespace site
