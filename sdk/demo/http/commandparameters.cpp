#include "sdk/demo/http/commandparameters.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr qsizetype longestShown = 60; // limit of input from the network in an error message

bool isHexadecimal(char character)
{
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
           (character >= 'A' && character <= 'F');
}

/// Decodes percent-encoding. nullopt for an invalid escape, for invalid UTF-8, and for control characters.
std::optional<QString> decoded(const QByteArray &encoded)
{
    for (qsizetype position = encoded.indexOf('%'); position >= 0;
         position = encoded.indexOf('%', position + 1)) {
        if (position + 2 >= encoded.size() || !isHexadecimal(encoded.at(position + 1)) ||
            !isHexadecimal(encoded.at(position + 2)))
            return std::nullopt;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(QByteArray::fromPercentEncoding(encoded));
    const bool hasControl = std::any_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control;
    });
    return decoder.hasError() || hasControl ? std::nullopt : std::optional(text);
}

} // namespace

CommandParameters::CommandParameters(const QByteArray &query)
{
    if (query.isEmpty())
        return;
    for (const QByteArray &part : query.split('&')) {
        const qsizetype equals = part.indexOf('=');
        const std::optional<QString> name = decoded(equals < 0 ? part : part.left(equals));
        const std::optional<QString> value = decoded(equals < 0 ? QByteArray() : part.mid(equals + 1));
        if (!name || !value || name->isEmpty())
            reportError(
                u"\"%1\" is not a parameter: name=value in UTF-8 was expected, with %25 for a percent sign"_s
                    .arg(QString::fromLatin1(part.left(longestShown))));
        else if (has(*name))
            reportError(u"\"%1\" occurs twice"_s.arg(name->left(longestShown)));
        else
            m_parameters.append({*name, *value});
    }
}

bool CommandParameters::has(const QString &name) const
{
    return std::any_of(m_parameters.begin(), m_parameters.end(),
                       [&name](const auto &parameter) { return parameter.first == name; });
}

std::optional<QString> CommandParameters::text(const QString &name)
{
    m_asked.append(name);
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&name](const auto &parameter) { return parameter.first == name; });
    return found == m_parameters.end() ? std::nullopt : std::optional(found->second);
}

int CommandParameters::number(const QString &name, int minimum, int maximum, int fallback)
{
    const std::optional<QString> given = text(name);
    if (!given)
        return fallback;
    bool isNumber = false;
    const int number = given->toInt(&isNumber);
    if (!isNumber || number < minimum || number > maximum) {
        reportError(u"%1 must be a number from %2 to %3, but is \"%4\""_s.arg(
            name, QString::number(minimum), QString::number(maximum), given->left(longestShown)));
        return fallback;
    }
    return number;
}

int CommandParameters::choice(const QString &name, const QStringList &choices, int fallback)
{
    const std::optional<QString> given = text(name);
    if (!given)
        return fallback;
    const qsizetype position = choices.indexOf(*given);
    if (position < 0) {
        reportError(u"%1 must be one of %2, but is \"%3\""_s.arg(name, choices.join(u", "_s),
                                                                 given->left(longestShown)));
        return fallback;
    }
    return static_cast<int>(position);
}

void CommandParameters::rejectOthers()
{
    for (const auto &parameter : std::as_const(m_parameters)) {
        if (!m_asked.contains(parameter.first))
            reportError(u"This command has no parameter \"%1\", only %2"_s.arg(
                parameter.first.left(longestShown),
                m_asked.isEmpty() ? u"nothing"_s : m_asked.join(u", "_s)));
    }
}

void CommandParameters::reportError(const QString &sentence)
{
    if (m_error.isEmpty())
        m_error = sentence;
}

} // namespace sdk::demo
