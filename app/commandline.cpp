#include "app/commandline.h"

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QLatin1StringView demoOption("--demo");
    CommandLine commandLine;
    for (qsizetype position = 1; position < arguments.size(); ++position) {
        const QString &argument = arguments.at(position);
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            commandLine.help = true;
        } else if (argument == QLatin1String("--version")) {
            commandLine.version = true;
        } else if (argument == demoOption) {
            commandLine.demo = true;
            // The scene is the next argument, unless that is an option or there is none.
            const bool hasScene =
                position + 1 < arguments.size() && !arguments.at(position + 1).startsWith(u'-');
            if (hasScene)
                commandLine.scene = arguments.at(++position);
        } else if (argument == QLatin1String("--no-demo")) {
            commandLine.demo = false;
        } else if (argument.startsWith(demoOption + QLatin1Char('='))) {
            commandLine.demo = true;
            commandLine.scene = argument.mid(demoOption.size() + 1);
        } else {
            commandLine.error = QStringLiteral("unknown argument \"%1\"").arg(argument);
            break;
        }
    }
    return commandLine;
}

QString CommandLine::usage()
{
    return QStringLiteral(
        "Usage: ConfigTools [--demo [SCENE] | --no-demo]\n"
        "\n"
        "  --demo [SCENE]  work on a simulated site instead of the network. SCENE is office (the\n"
        "                  default), factory, faulty, fleet:N with N up to 20000, or a scene file.\n"
        "                  Accounts of its devices: admin, password Office-2024 (fleet:N:\n"
        "                  Installer-2024). New devices have no account until they are initialised\n"
        "  --no-demo       work on the devices of the network, as without --demo\n"
        "  --version       print the version and end\n"
        "  --help          print this text and end\n");
}
