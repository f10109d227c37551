#include "commandline/secrets.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

constexpr const char *variable = "CONFIGTOOLS_PASSWORD";
constexpr qint64 longestLine = 1024;

Secret readPasswordFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {.password = {}, .error = u"the password file cannot be read: %1"_s.arg(file.errorString())};
    const QByteArray line = file.readLine(longestLine + 1);
    if (line.size() > longestLine)
        return {.password = {}, .error = u"the first line of the password file is too long"_s};
    QString password = QString::fromUtf8(line);
    while (password.endsWith(u'\n') || password.endsWith(u'\r'))
        password.chop(1);
    return {.password = password,
            .error = password.isEmpty() ? u"the first line of the password file is empty"_s : QString()};
}

Secret askPassword(const Terminal &terminal, SecretPurpose purpose)
{
    const std::optional<QString> password = terminal.readSecret(u"Password: "_s);
    if (!password || password->isEmpty())
        return {.password = {},
                .error = u"no password: use --password-file or the environment variable "
                         "CONFIGTOOLS_PASSWORD"_s};
    if (purpose == SecretPurpose::NewAccount && terminal.readSecret(u"Repeat the password: "_s) != password)
        return {.password = {}, .error = u"the passwords differ"_s};
    return {.password = *password, .error = {}};
}

} // namespace

bool hasPassword(const Arguments &arguments)
{
    return arguments.has("password-file"_L1) || !qEnvironmentVariableIsEmpty(variable);
}

Secret readPassword(const Arguments &arguments, const Terminal &terminal, SecretPurpose purpose)
{
    if (arguments.has("password-file"_L1))
        return readPasswordFile(arguments.value("password-file"_L1));
    const QString password = qEnvironmentVariable(variable);
    return password.isEmpty() ? askPassword(terminal, purpose) : Secret{.password = password, .error = {}};
}

} // namespace commandline
