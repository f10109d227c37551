#include "commandline/secrets.h"

#include "device/registry/listprotection.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

constexpr qint64 longestLine = 1024;

/// The sources of a secret.
struct SecretSources
{
    QLatin1StringView name;   ///< for the user
    QLatin1StringView option; ///< names a file
    const char *variable;     ///< of the environment
};

constexpr SecretSources passwordSources = {"password"_L1, "password-file"_L1, "CONFIGTOOLS_PASSWORD"};
constexpr SecretSources passphraseSources = {"passphrase"_L1, "passphrase-file"_L1, "CONFIGTOOLS_PASSPHRASE"};

Secret readSecretFile(const SecretSources &sources, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {.password = {},
                .error = u"the %1 file cannot be read: %2"_s.arg(sources.name, file.errorString())};
    const QByteArray line = file.readLine(longestLine + 1);
    if (line.size() > longestLine)
        return {.password = {}, .error = u"the first line of the %1 file is too long"_s.arg(sources.name)};
    QString password = QString::fromUtf8(line);
    while (password.endsWith(u'\n') || password.endsWith(u'\r'))
        password.chop(1);
    return {.password = password,
            .error = password.isEmpty() ? u"the first line of the %1 file is empty"_s.arg(sources.name)
                                        : QString()};
}

Secret askSecret(const SecretSources &sources, const Terminal &terminal, SecretPurpose purpose)
{
    const QString title = QString(sources.name).replace(0, 1, QChar(sources.name.front()).toUpper());
    const std::optional<QString> secret = terminal.readSecret(title + u": "_s);
    if (!secret || secret->isEmpty())
        return {.password = {},
                .error = u"no %1: use --%2 or the environment variable %3"_s.arg(
                    sources.name, sources.option, QLatin1StringView(sources.variable))};
    if (purpose == SecretPurpose::NewSecret &&
        terminal.readSecret(u"Repeat the %1: "_s.arg(sources.name)) != secret)
        return {.password = {}, .error = u"the %1s differ"_s.arg(sources.name)};
    return {.password = *secret, .error = {}};
}

Secret readSecret(const SecretSources &sources, const Arguments &arguments, const Terminal &terminal,
                  SecretPurpose purpose)
{
    if (arguments.has(sources.option))
        return readSecretFile(sources, arguments.value(sources.option));
    const QString secret = qEnvironmentVariable(sources.variable);
    return secret.isEmpty() ? askSecret(sources, terminal, purpose) : Secret{.password = secret, .error = {}};
}

} // namespace

bool hasPassword(const Arguments &arguments)
{
    return arguments.has("password-file"_L1) || !qEnvironmentVariableIsEmpty(passwordSources.variable);
}

Secret readPassword(const Arguments &arguments, const Terminal &terminal, SecretPurpose purpose)
{
    return readSecret(passwordSources, arguments, terminal, purpose);
}

Secret readPassphrase(const Arguments &arguments, const Terminal &terminal, SecretPurpose purpose)
{
    Secret secret = readSecret(passphraseSources, arguments, terminal, purpose);
    if (secret.error.isEmpty() && purpose == SecretPurpose::NewSecret &&
        secret.password.size() < shortestPassphrase)
        secret.error = u"a passphrase has at least %1 characters"_s.arg(shortestPassphrase);
    return secret;
}

} // namespace commandline
