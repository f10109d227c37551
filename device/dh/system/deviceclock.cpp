#include "device/dh/system/deviceclock.h"

#include "sdk/loginblocks.h"
#include "sdk/netlibrary.h"

#include <QCoreApplication>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr auto clockWait = 3000ms;

class ClockTexts
{
    Q_DECLARE_TR_FUNCTIONS(DeviceClock)
public:
    /// A time span in its two largest units.
    static QString span(qint64 seconds)
    {
        constexpr qint64 minute = 60;
        constexpr qint64 hour = 60 * minute;
        constexpr qint64 day = 24 * hour;
        if (seconds < minute)
            return tr("%1 秒").arg(seconds);
        if (seconds < hour)
            return tr("%1 分 %2 秒").arg(seconds / minute).arg(seconds % minute);
        if (seconds < day)
            return tr("%1 小时 %2 分").arg(seconds / hour).arg(seconds % hour / minute);
        return tr("%1 天 %2 小时").arg(seconds / day).arg(seconds % day / hour);
    }

    static QString difference(qint64 ahead)
    {
        if (ahead == 0)
            return tr("与电脑一致");
        //: Of a device's clock, against this computer's. %1 is a span of time.
        return ahead > 0 ? tr("快 %1").arg(span(ahead)) : tr("慢 %1").arg(span(-ahead));
    }

    //: %1 is a device's date and time, %2 by how much its clock is ahead or behind.
    static QString whole() { return tr("%1，%2"); }
};

} // namespace

std::optional<QDateTime> readDeviceClock(sdk::NetLibrary &net, std::int64_t loginHandle, std::uint32_t &error)
{
    error = 0;
    sdk::TimeRecord record{};
    std::uint32_t returned = 0;
    if (!net.NetQueryConfig(loginHandle, sdk::QueryCommand::Time, 0, &record, sizeof(record), returned,
                            clockWait)) {
        error = net.NetGetLastError();
        return std::nullopt;
    }
    if (returned < sizeof(record))
        return std::nullopt;
    const auto part = [](std::uint32_t number) {
        return static_cast<int>(std::min<std::uint32_t>(number, 9999));
    };
    const QDateTime time(QDate(part(record.year), part(record.month), part(record.day)),
                         QTime(part(record.hour), part(record.minute), part(record.second)), Qt::UTC);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

QString deviceClockText(const QDateTime &device, const QDateTime &here)
{
    const QDateTime shownHere(here.date(), here.time(), Qt::UTC);
    return ClockTexts::whole().arg(device.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")),
                                   ClockTexts::difference(shownHere.secsTo(device)));
}
