#include "sdk/onvif/session/clocktime.h"

#include "sdk/onvif/session/posixtimezone.h"

#include <QDateTime>

namespace sdk::onvif {

namespace {

QDateTime toQt(const DateTime &time)
{
    return QDateTime(QDate(time.year, time.month, time.day),
                     QTime(time.hour, time.minute, qMin(time.second, 59)), Qt::UTC);
}

DateTime fromQt(const QDateTime &time)
{
    return {.year = time.date().year(),
            .month = time.date().month(),
            .day = time.date().day(),
            .hour = time.time().hour(),
            .minute = time.time().minute(),
            .second = time.time().second()};
}

constexpr int secondsOfMinute = 60;

/// Minutes ahead of UTC at a UTC time.
int offsetAtUtc(const DeviceClock &clock, const DateTime &utc)
{
    const std::optional<PosixTimeZone> zone = readPosixTimeZone(clock.timeZone);
    if (!zone)
        return 0;
    if (!clock.daylightSaving)
        return zone->offset;
    const qint64 seconds = static_cast<qint64>(zone->offset) * secondsOfMinute;
    return zone->offsetAt(fromQt(toQt(utc).addSecs(seconds)));
}

} // namespace

std::chrono::milliseconds clockOffset(const DateTime &utc)
{
    return std::chrono::milliseconds(toQt(utc).toMSecsSinceEpoch() - QDateTime::currentMSecsSinceEpoch());
}

std::optional<DateTime> shownTime(const DeviceClock &clock)
{
    if (clock.local)
        return clock.local;
    if (!clock.utc)
        return std::nullopt;
    const qint64 seconds = static_cast<qint64>(offsetAtUtc(clock, *clock.utc)) * secondsOfMinute;
    return fromQt(toQt(*clock.utc).addSecs(seconds));
}

DateTime utcOfShown(const DateTime &shown, const DeviceClock &clock)
{
    const std::optional<PosixTimeZone> zone = readPosixTimeZone(clock.timeZone);
    if (!zone) {
        // Without a zone, the offset is the difference between the device's local time and its UTC time.
        const qint64 ahead = clock.local && clock.utc ? toQt(*clock.utc).secsTo(toQt(*clock.local)) : 0;
        return fromQt(toQt(shown).addSecs(-ahead));
    }
    const int offset = clock.daylightSaving ? zone->offsetAt(shown) : zone->offset;
    return fromQt(toQt(shown).addSecs(-static_cast<qint64>(offset) * secondsOfMinute));
}

TimeRecord timeRecord(const DateTime &time)
{
    const auto part = [](int number) {
        return static_cast<std::uint32_t>(number);
    };
    return {.year = part(time.year),
            .month = part(time.month),
            .day = part(time.day),
            .hour = part(time.hour),
            .minute = part(time.minute),
            .second = part(time.second)};
}

DateTime dateTimeOf(const TimeRecord &record)
{
    const auto part = [](std::uint32_t number) {
        return static_cast<int>(std::min<std::uint32_t>(number, 9999));
    };
    return {.year = part(record.year),
            .month = part(record.month),
            .day = part(record.day),
            .hour = part(record.hour),
            .minute = part(record.minute),
            .second = part(record.second)};
}

} // namespace sdk::onvif
