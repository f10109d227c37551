#include "device/forms/systemtools.h"

#include "device/registry/passwordstrength.h"
#include "device/store/ipv4address.h"

#include <QDateTime>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

#include <optional>

namespace {

/// Offset in minutes, positive east of Greenwich. The hours may have one digit; no sign means east.
std::optional<int> offsetOf(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^UTC([+-]?)(\\d{1,2}):(\\d{2})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const int minutes = match.captured(2).toInt() * 60 + match.captured(3).toInt();
    return match.captured(1) == QLatin1String("-") ? -minutes : minutes;
}

} // namespace

QStringList SystemTools::timeZones()
{
    static const QStringList zones =
        QStringLiteral("UTC+00:00 UTC+01:00 UTC+02:00 UTC+03:00 UTC+03:30 UTC+04:00 UTC+04:30 UTC+05:00 "
                       "UTC+05:30 UTC+05:45 UTC+06:00 UTC+06:30 UTC+07:00 UTC+08:00 UTC+09:00 UTC+09:30 "
                       "UTC+10:00 UTC+11:00 UTC+12:00 UTC+13:00 UTC-01:00 UTC-02:00 UTC-03:00 UTC-03:30 "
                       "UTC-04:00 UTC-05:00 UTC-06:00 UTC-07:00 UTC-08:00 UTC-09:00 UTC-10:00 UTC-11:00 "
                       "UTC-12:00 UTC-04:30 UTC+10:30 UTC+14:00 UTC-09:30 UTC+08:30 UTC+08:45 UTC+12:45")
            .split(QLatin1Char(' '));
    return zones;
}

int SystemTools::timeZoneIndex(const QString &text) const
{
    const std::optional<int> wanted = offsetOf(text);
    const QStringList zones = timeZones();
    for (int index = 0; index < zones.size(); ++index) {
        if (wanted && offsetOf(zones.at(index)) == wanted)
            return index;
    }
    return -1;
}

QString SystemTools::timeOfThisComputer() const
{
    return QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

bool SystemTools::isHost(const QString &text) const
{
    constexpr qsizetype longestName = 253;
    if (ipv4Number(text))
        return true;
    if (text.contains(QLatin1Char(':')))
        return !text.contains(QLatin1Char('%')) &&
               QHostAddress(text).protocol() == QAbstractSocket::IPv6Protocol;
    // International names are checked in their ASCII form. A last label of digits only is a mistyped address.
    static const QRegularExpression name(
        QStringLiteral("^(?!-)[a-z0-9-]{1,63}(?<!-)(\\.(?!-)[a-z0-9-]{1,63}(?<!-))*\\.?$"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression digits(QStringLiteral("(^|\\.)\\d+\\.?$"));
    const QString ascii = QString::fromLatin1(QUrl::toAce(text));
    return ascii.size() <= longestName && name.match(ascii).hasMatch() && !digits.match(ascii).hasMatch();
}

SystemTools::PasswordFault SystemTools::newPasswordFault(const QString &password,
                                                         const QString &confirmation) const
{
    constexpr int weak = 1;
    constexpr int shortest = 8;
    constexpr int longest = 32;
    if (passwordStrength(password) <= weak)
        return TooWeak;
    if (confirmation.isEmpty())
        return NoConfirmation;
    if (confirmation != password)
        return NotTheSame;
    if (confirmation.size() < shortest || confirmation.size() > longest)
        return LengthOutOfRange;
    return NoFault;
}
