#include "device/dh/system/systemdata.h"

#include "device/registry/bytetext.h"
#include "device/registry/systemkeys.h"
#include "sdk/blocktext.h"

#include <QDateTime>

namespace {

constexpr int largestWord = 65535;

/// An integer from `minimum` to `maximum`, given as number or text.
std::optional<std::int32_t> numberFrom(const QVariantMap &data, const QString &key, int minimum, int maximum)
{
    bool isNumber = false;
    const double number = data.value(key).toDouble(&isNumber);
    // This form of the condition also rejects NaN.
    if (!isNumber || !(number >= minimum && number <= maximum))
        return std::nullopt;
    const auto whole = static_cast<std::int32_t>(number);
    return whole == number ? std::optional(whole) : std::nullopt;
}

std::optional<bool> flagFrom(const QVariantMap &data, const QString &key)
{
    const QVariant value = data.value(key);
    return value.canConvert<bool>() ? std::optional(value.toBool()) : std::nullopt;
}

/// Hour and minute; an invalid time if the text is invalid.
QTime minutesFrom(const QVariantMap &data, const QString &key)
{
    return QTime::fromString(data.value(key).toString(), QStringLiteral("hh:mm"));
}

/// Start or end of daylight saving; its keys start with `prefix`.
std::optional<sdk::DaylightSavingPoint> pointFrom(const QVariantMap &data, const QString &prefix, bool byWeek)
{
    constexpr int lastWeekIndex = 4;
    constexpr int lastDayIndex = 30;
    constexpr int saturday = 6;
    const auto month = numberFrom(data, prefix + SystemDataKey::pointMonth, 1, 12);
    const QTime time = minutesFrom(data, prefix + SystemDataKey::pointTime);
    if (!month || !time.isValid())
        return std::nullopt;
    sdk::DaylightSavingPoint point{.month = *month,
                                   .week = sdk::DaylightSavingPoint::byDate,
                                   .day = 0,
                                   .hour = time.hour(),
                                   .minute = time.minute()};
    if (!byWeek) {
        const auto dayIndex = numberFrom(data, prefix + SystemDataKey::pointDay, 0, lastDayIndex);
        if (!dayIndex)
            return std::nullopt;
        point.day = *dayIndex + 1;
        return point;
    }
    const auto weekIndex = numberFrom(data, prefix + SystemDataKey::pointWeek, 0, lastWeekIndex);
    const auto weekDay = numberFrom(data, prefix + SystemDataKey::pointWeekDay, 0, saturday);
    if (!weekIndex || !weekDay)
        return std::nullopt;
    point.week = *weekIndex == lastWeekIndex ? sdk::DaylightSavingPoint::lastWeek : *weekIndex + 1;
    point.day = *weekDay;
    return point;
}

} // namespace

std::optional<sdk::TimeRecord> timeFrom(const QVariantMap &data)
{
    const QDateTime time = QDateTime::fromString(data.value(SystemDataKey::time).toString(),
                                                 QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    // Date and time are checked separately: a time that the host's daylight saving skips is valid on a
    // device.
    if (!time.date().isValid() || !time.time().isValid() || time.date().year() < 1)
        return std::nullopt;
    const auto part = [](int number) {
        return static_cast<std::uint32_t>(number);
    };
    return sdk::TimeRecord{.year = part(time.date().year()),
                           .month = part(time.date().month()),
                           .day = part(time.date().day()),
                           .hour = part(time.time().hour()),
                           .minute = part(time.time().minute()),
                           .second = part(time.time().second())};
}

std::optional<DaylightSaving> daylightSavingFrom(const QVariantMap &data)
{
    const auto enabled = flagFrom(data, SystemDataKey::dstEnable);
    const auto mode = numberFrom(data, SystemDataKey::dstMode, 0, 1);
    if (!enabled || !mode)
        return std::nullopt;
    const auto begin = pointFrom(data, SystemDataKey::start, *mode == 1);
    const auto end = pointFrom(data, SystemDataKey::end, *mode == 1);
    if (!begin || !end)
        return std::nullopt;
    return DaylightSaving{.enabled = *enabled, .begin = *begin, .end = *end};
}

std::optional<sdk::NtpRecord> ntpFrom(const QVariantMap &data)
{
    const auto timeZone = numberFrom(data, SystemDataKey::timeZone, 0, sdk::NtpRecord::timeZones - 1);
    const auto enabled = flagFrom(data, SystemDataKey::ntpSet);
    const auto port = numberFrom(data, SystemDataKey::ntpPort, 0, largestWord);
    const auto updatePeriod = numberFrom(data, SystemDataKey::updatePeriod, 0, largestWord);
    const std::string server = data.value(SystemDataKey::ntpServer).toString().toStdString();
    sdk::NtpRecord record{};
    if (!timeZone || !enabled || !port || !updatePeriod || server.size() >= record.address.size() ||
        !data.contains(SystemDataKey::ntpServer))
        return std::nullopt;
    record.size = sizeof(record);
    record.enabled = *enabled ? 1 : 0;
    sdk::setBlockText(record.address, server);
    record.port = *port;
    record.updatePeriod = *updatePeriod;
    record.timeZone = *timeZone;
    return record;
}

std::optional<sdk::AutoMaintainRecord> autoMaintainFrom(const QVariantMap &data)
{
    const auto week = numberFrom(data, SystemDataKey::week, 0, sdk::AutoMaintainRecord::everyDay);
    const auto autoReboot = flagFrom(data, SystemDataKey::autoReboot);
    const QTime time = minutesFrom(data, SystemDataKey::time);
    if (!week || !autoReboot || !time.isValid())
        return std::nullopt;
    sdk::AutoMaintainRecord record{};
    record.size = sizeof(record);
    record.rebootDay = *autoReboot ? *week : sdk::AutoMaintainRecord::never;
    record.rebootHour = time.hour();
    record.rebootMinute = time.minute();
    record.rebootEnabled = *autoReboot ? 1 : 0;
    return record;
}

std::optional<sdk::ChannelNameItem> channelNameFrom(const QVariantMap &data)
{
    const QString name = ByteText::withoutInvisible(data.value(SystemDataKey::name).toString()).trimmed();
    if (name.isEmpty() || ByteText::bytes(name) > ByteText::channelNameBytes())
        return std::nullopt;
    sdk::ChannelNameItem item = {};
    item.size = sizeof(item);
    sdk::setBlockText(item.name, name.toStdString());
    return item;
}

std::optional<sdk::VideoStandardItem> videoStandardFrom(const QVariantMap &data)
{
    const auto standard = numberFrom(data, SystemDataKey::videoStandard, 1, 2);
    if (!standard)
        return std::nullopt;
    return sdk::VideoStandardItem{.size = sizeof(sdk::VideoStandardItem),
                                  .standard = static_cast<sdk::VideoStandard>(*standard)};
}
