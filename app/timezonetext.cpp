#include "app/timezonetext.h"

#include <QDateTime>
#include <QTimeZone>

#include <cstdlib>

QString timeZoneText(int offsetFromUtc)
{
    constexpr int secondsPerHour = 3600;
    constexpr int secondsPerMinute = 60;
    return QStringLiteral("UTC%1%2:%3")
        .arg(offsetFromUtc >= 0 ? QStringLiteral("+") : QString())
        .arg(offsetFromUtc / secondsPerHour, 2, 10, QLatin1Char('0'))
        .arg(std::abs(offsetFromUtc) % secondsPerHour / secondsPerMinute, 2, 10, QLatin1Char('0'));
}

QString systemTimeZoneText()
{
    return timeZoneText(QTimeZone::systemTimeZone().offsetFromUtc(QDateTime::currentDateTime()));
}
