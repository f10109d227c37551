#include "site/commandline.h"

#include <QMap>

#include <functional>

using namespace Qt::StringLiterals;

namespace site {

namespace {

/// Sets `choice` to the value of that name. Returns false for an unknown name.
template<typename Choice>
bool choose(Choice &choice, const QString &name, const QMap<QString, Choice> &choices)
{
    choice = choices.value(name, choice);
    return choices.contains(name);
}

bool takeNumber(int &number, const QString &text)
{
    bool isNumber = false;
    number = text.toInt(&isNumber);
    return isNumber && number > 0;
}

bool takeText(QString &destination, const QString &text)
{
    destination = text;
    return !text.isEmpty();
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    CommandLine line;
    const QMap<QString, std::function<bool(const QString &)>> options = {
        {u"--scene"_s,
         [&](const QString &value) {
             return takeText(line.scene, value);
         }},
        {u"--interface"_s,
         [&](const QString &value) {
             return takeText(line.interface, value);
         }},
        {u"--record"_s,
         [&](const QString &value) {
             return takeText(line.options.recordFolder, value);
         }},
        {u"--devices"_s,
         [&](const QString &value) {
             return takeNumber(line.mostDevices, value);
         }},
        {u"--login"_s,
         [&](const QString &value) {
             return choose(line.options.login, value,
                           {{u"token"_s, LoginChoice::Token},
                            {u"digest"_s, LoginChoice::Digest},
                            {u"both"_s, LoginChoice::Both}});
         }},
        {u"--digest"_s,
         [&](const QString &value) {
             return choose(line.options.digest, value,
                           {{u"md5"_s, DigestChoice::Md5},
                            {u"sha256"_s, DigestChoice::Sha256},
                            {u"both"_s, DigestChoice::Both}});
         }},
    };
    for (qsizetype index = 1; index < arguments.size() && line.error.isEmpty(); ++index) {
        const QString &argument = arguments.at(index);
        const QString name = argument.section(u'=', 0, 0);
        if (argument == u"--help" || argument == u"-h") {
            line.help = true;
        } else if (argument == u"--list") {
            line.lists = true;
        } else if (argument == u"--new-keys") {
            line.options.newKeys = true;
        } else if (!options.contains(name)) {
            line.error = u"unknown argument \"%1\""_s.arg(argument);
        } else {
            const QString value =
                argument.contains(u'=') ? argument.section(u'=', 1) : arguments.value(++index);
            if (!options.value(name)(value))
                line.error = u"%1 cannot be \"%2\""_s.arg(name, value);
        }
    }
    return line;
}

QString CommandLine::usage()
{
    return u"Usage: ConfigToolsSite [--scene SCENE] [--interface NAME] [OPTION...]\n"
           "\n"
           "Serves a simulated site on a network: each device has a separate MAC and address.\n"
           "It needs the right to create network namespaces and interfaces; scripts/lab starts it\n"
           "in a network without any other connection.\n"
           "\n"
           "  --scene SCENE      office (the default), factory, faulty, fleet:N, or a scene file\n"
           "  --interface NAME   the interface that the devices are connected to (eth0)\n"
           "  --devices N        only the first N devices of the scene\n"
           "  --list             print the devices and their accounts, and exit\n"
           "  --record FOLDER    write every message of a service to a file\n"
           "  --login KIND       token, digest or both for all devices, instead of the method of their make\n"
           "  --digest KIND      md5, sha256 or both, the same\n"
           "  --new-keys         devices create another HTTPS key at each start\n"
           "  --help             print this text and exit\n"_s;
}

} // namespace site
