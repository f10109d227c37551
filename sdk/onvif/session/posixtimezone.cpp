#include "sdk/onvif/session/posixtimezone.h"

#include <QDate>

#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace sdk::onvif {

namespace {

constexpr int minutesOfHour = 60;
constexpr int usualSwitchHour = 2;
constexpr int lastWeekNumber = 5; ///< in POSIX strings

/// Reads a string part by part. After a failure all further reads fail.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_left(text) {}

    [[nodiscard]] bool isOk() const { return m_isOk; }
    [[nodiscard]] bool isAtEnd() const { return m_left.empty(); }
    [[nodiscard]] char next() const { return m_left.empty() ? '\0' : m_left.front(); }

    bool skip(char character)
    {
        if (next() != character)
            return false;
        m_left.remove_prefix(1);
        return true;
    }

    void require(char character) { m_isOk = skip(character) && m_isOk; }

    std::string name()
    {
        constexpr std::size_t shortest = 3;
        constexpr std::size_t longest = 16;
        std::string read;
        const bool isQuoted = skip('<');
        while (!m_left.empty() && read.size() < longest) {
            const auto character = static_cast<unsigned char>(next());
            const bool belongs = isQuoted
                                     ? std::isalnum(character) != 0 || character == '+' || character == '-'
                                     : std::isalpha(character) != 0;
            if (!belongs)
                break;
            read += next();
            m_left.remove_prefix(1);
        }
        if (isQuoted)
            require('>');
        m_isOk = m_isOk && read.size() >= shortest;
        return read;
    }

    int number(int minimum, int maximum)
    {
        int value = 0;
        const auto [end, error] = std::from_chars(m_left.data(), m_left.data() + m_left.size(), value);
        if (error != std::errc() || value < minimum || value > maximum) {
            m_isOk = false;
            return minimum;
        }
        m_left.remove_prefix(static_cast<std::size_t>(end - m_left.data()));
        return value;
    }

    /// Hours with minutes and seconds, in minutes.
    int time()
    {
        const bool isNegative = skip('-');
        if (!isNegative)
            skip('+');
        constexpr int longest = 167;
        int minutes = number(0, longest) * minutesOfHour;
        if (skip(':'))
            minutes += number(0, minutesOfHour - 1);
        if (skip(':'))
            (void)number(0, minutesOfHour - 1);
        return isNegative ? -minutes : minutes;
    }

private:
    std::string_view m_left;
    bool m_isOk = true;
};

DaylightSavingPoint readPoint(Reader &reader)
{
    DaylightSavingPoint point{};
    reader.require('M');
    point.month = reader.number(1, 12);
    reader.require('.');
    const int week = reader.number(1, lastWeekNumber);
    point.week = week == lastWeekNumber ? DaylightSavingPoint::lastWeek : week;
    reader.require('.');
    point.day = reader.number(0, 6);
    int minutes = usualSwitchHour * minutesOfHour;
    if (reader.skip('/'))
        minutes = reader.time();
    constexpr int minutesOfDay = 24 * minutesOfHour;
    if (minutes < 0 || minutes >= minutesOfDay)
        minutes = usualSwitchHour * minutesOfHour;
    point.hour = minutes / minutesOfHour;
    point.minute = minutes % minutesOfHour;
    return point;
}

std::string timeText(int minutes)
{
    std::string text = std::to_string(minutes / minutesOfHour);
    if (minutes % minutesOfHour != 0) {
        std::array<char, 8> part{};
        std::snprintf(part.data(), part.size(), ":%02d", minutes % minutesOfHour);
        text += part.data();
    }
    return text;
}

std::string offsetText(int minutesAhead)
{
    return (minutesAhead > 0 ? "-" : "") + timeText(std::abs(minutesAhead));
}

std::string nameText(const std::string &name)
{
    for (const char character : name) {
        if (std::isalpha(static_cast<unsigned char>(character)) == 0)
            return '<' + name + '>';
    }
    return name;
}

/// A rule by date has no POSIX form in weeks: it is converted to the week of the month that contains the day.
std::string pointText(const DaylightSavingPoint &point)
{
    constexpr int daysOfWeek = 7;
    int week = point.week;
    int day = point.day;
    if (week == DaylightSavingPoint::byDate) {
        week = (point.day - 1) / daysOfWeek + 1;
        day = 0;
    } else if (week == DaylightSavingPoint::lastWeek) {
        week = lastWeekNumber;
    }
    return "M" + std::to_string(point.month) + '.' + std::to_string(week) + '.' + std::to_string(day) + '/' +
           timeText(point.hour * minutesOfHour + point.minute);
}

/// Minutes from the start of the year to the point.
qint64 minutesInYear(int year, const DaylightSavingPoint &point)
{
    const QDate first(year, point.month, 1);
    QDate day;
    if (point.week == DaylightSavingPoint::byDate) {
        day = QDate(year, point.month, point.day);
    } else {
        constexpr int daysOfWeek = 7;
        const int firstWeekday = first.dayOfWeek() % daysOfWeek; // 0 Sunday
        const int ahead = (point.day - firstWeekday + daysOfWeek) % daysOfWeek;
        const int weeks = point.week == DaylightSavingPoint::lastWeek ? lastWeekNumber - 1 : point.week - 1;
        day = first.addDays(ahead + static_cast<qint64>(weeks) * daysOfWeek);
        if (day.month() != point.month)
            day = day.addDays(-daysOfWeek);
    }
    constexpr qint64 minutesOfDay = 24LL * minutesOfHour;
    return QDate(year, 1, 1).daysTo(day) * minutesOfDay + qint64(point.hour) * minutesOfHour + point.minute;
}

} // namespace

std::string PosixTimeZone::text() const
{
    std::string text = nameText(name) + offsetText(offset);
    if (!hasDaylightSaving())
        return text;
    text += nameText(daylightName);
    if (daylightOffset != offset + minutesOfHour)
        text += offsetText(daylightOffset);
    return text + ',' + pointText(begin) + ',' + pointText(end);
}

int PosixTimeZone::offsetAt(const DateTime &standardTime) const
{
    if (!hasDaylightSaving())
        return offset;
    constexpr qint64 minutesOfDay = 24LL * minutesOfHour;
    const QDate date(standardTime.year, standardTime.month, standardTime.day);
    const qint64 now = QDate(standardTime.year, 1, 1).daysTo(date) * minutesOfDay +
                       qint64(standardTime.hour) * minutesOfHour + standardTime.minute;
    const qint64 from = minutesInYear(standardTime.year, begin);
    const qint64 to = minutesInYear(standardTime.year, end) - (daylightOffset - offset);
    // In the southern hemisphere, daylight saving extends over the turn of the year.
    const bool isSaving = from < to ? now >= from && now < to : now >= from || now < to;
    return isSaving ? daylightOffset : offset;
}

std::optional<PosixTimeZone> readPosixTimeZone(std::string_view text)
{
    Reader reader(text);
    PosixTimeZone zone;
    zone.name = reader.name();
    zone.offset = -reader.time();
    if (!reader.isOk())
        return std::nullopt;
    if (reader.isAtEnd())
        return zone;
    zone.daylightName = reader.name();
    zone.daylightOffset = zone.offset + minutesOfHour;
    if (reader.next() != ',' && !reader.isAtEnd())
        zone.daylightOffset = -reader.time();
    reader.require(',');
    zone.begin = readPoint(reader);
    reader.require(',');
    zone.end = readPoint(reader);
    if (!reader.isOk() || !reader.isAtEnd()) {
        zone.daylightName.clear();
        zone.daylightOffset = 0;
        zone.begin = zone.end = {};
    }
    return zone;
}

} // namespace sdk::onvif
