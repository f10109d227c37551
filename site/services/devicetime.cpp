#include "site/services/devicetime.h"

#include "sdk/configtext/configtext.h"
#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/device/fieldtext.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/systemrecords.h"
#include "site/services/servicestate.h"

#include <QDateTime>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTimeZone>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

const QString timeZoneKey = u"timeZone"_s;
const QString ntpFromDhcpKey = u"ntpFromDhcp"_s;

/// The record of one of the device's configurations.
template<typename Record>
Record configurationOf(const SceneDevice &device, const char *name)
{
    Record record = {};
    record.size = sizeof(record);
    if (const std::optional<QByteArray> text = configurationText(device, QLatin1String(name)))
        (void)sdk::unpackConfigText(name, {text->constData(), static_cast<std::size_t>(text->size())},
                                    &record, sizeof(record));
    return record;
}

template<typename Record>
sdk::NetError keepConfiguration(SceneDevice &device, const char *name, const Record &record)
{
    const std::optional<QByteArray> text = sdk::packConfigText(name, &record, sizeof(record));
    return text ? setConfiguration(device, QLatin1String(name), *text) : sdk::NetError::NotSupported;
}

QString timeZoneOf(const SceneDevice &device)
{
    return serviceState(device, timeZoneKey).toString(u"GMT0"_s);
}

bool hasDaylightSaving(const SceneDevice &device)
{
    return configurationOf<sdk::LocalesRecord>(device, "Locales").daylightSavingEnabled != 0;
}

/// "CST-8" alone, without the rules of its daylight saving.
QString standardZone(const QString &zone)
{
    static const QRegularExpression standard(u"^(<[^>]+>|[A-Za-z]+)[-+]?[0-9]+(:[0-9]+){0,2}"_s);
    return standard.match(zone).captured();
}

/// The offset of a zone from UTC at a time (UTC). Nothing for an invalid zone.
std::optional<std::chrono::seconds> offsetOf(const QString &zone, bool withDaylightSaving, std::int64_t utc)
{
    const QTimeZone parsed((withDaylightSaving ? zone : standardZone(zone)).toLatin1());
    if (!parsed.isValid() || standardZone(zone).isEmpty())
        return std::nullopt;
    return std::chrono::seconds(parsed.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC)));
}

std::int64_t aheadOf(const SceneDevice &device, std::int64_t utc)
{
    const auto offset = offsetOf(timeZoneOf(device), hasDaylightSaving(device), utc);
    return std::chrono::milliseconds(offset.value_or(std::chrono::seconds(0))).count();
}

void writeTime(XmlElement element, std::int64_t time)
{
    const QDateTime shown = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
    XmlElement hours = element.add("tt:Time");
    hours.add("tt:Hour", shown.time().hour());
    hours.add("tt:Minute", shown.time().minute());
    hours.add("tt:Second", shown.time().second());
    XmlElement date = element.add("tt:Date");
    date.add("tt:Year", shown.date().year());
    date.add("tt:Month", shown.date().month());
    date.add("tt:Day", shown.date().day());
}

std::optional<QDateTime> readTime(pugi::xml_node element)
{
    const auto number = [element](std::string_view path) {
        return textAt(element, path).value_or(QString()).toInt();
    };
    const QDateTime time(
        QDate(number("tt:Date/tt:Year"), number("tt:Date/tt:Month"), number("tt:Date/tt:Day")),
        QTime(number("tt:Time/tt:Hour"), number("tt:Time/tt:Minute"), number("tt:Time/tt:Second")), Qt::UTC);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

/// Reads the daylight saving rules of "CET-1CEST,M3.5.0,M10.5.0/3" into `record`. Other types of rules do not
/// change it.
void takeRules(const QString &zone, sdk::LocalesRecord &record)
{
    static const QRegularExpression rule(u",M([0-9]+)\\.([0-9])\\.([0-6])(?:/([0-9]+)(?::([0-9]+))?)?"_s);
    constexpr int lastWeek = 5;
    constexpr int usualHour = 2;
    QRegularExpressionMatchIterator found = rule.globalMatch(zone);
    for (sdk::DaylightSavingPoint *point : {&record.begin, &record.end}) {
        if (!found.hasNext())
            return;
        const QRegularExpressionMatch match = found.next();
        const int week = match.captured(2).toInt();
        *point = {match.captured(1).toInt(), week == lastWeek ? sdk::DaylightSavingPoint::lastWeek : week,
                  match.captured(3).toInt(),
                  match.captured(4).isEmpty() ? usualHour : match.captured(4).toInt(),
                  match.captured(5).toInt()};
    }
}

sdk::NetError keepZone(SceneDevice &device, const QString &zone, bool withDaylightSaving)
{
    auto record = configurationOf<sdk::LocalesRecord>(device, "Locales");
    record.daylightSavingEnabled = withDaylightSaving ? 1 : 0;
    takeRules(zone, record);
    const sdk::NetError error = keepConfiguration(device, "Locales", record);
    if (error == sdk::NetError::None)
        setServiceState(device, timeZoneKey, zone);
    return error;
}

sdk::NetError keepNtp(SceneDevice &device, const std::function<void(sdk::NtpRecord &record)> &change)
{
    auto record = configurationOf<sdk::NtpRecord>(device, "NTP");
    change(record);
    return keepConfiguration(device, "NTP", record);
}

} // namespace

std::int64_t utcOf(const SceneDevice &device, std::int64_t now)
{
    const std::int64_t shown = now + device.maintenance.clockAhead.count();
    // Within an hour of a change of the zone's offset, the result has the error of a clock without UTC.
    return shown - aheadOf(device, shown - aheadOf(device, shown));
}

ServiceResult getSystemDateAndTime(ServiceCall &call)
{
    XmlElement time = call.response.add("tds:SystemDateAndTime");
    const bool isByNtp = configurationOf<sdk::NtpRecord>(call.device, "NTP").enabled != 0;
    time.add("tt:DateTimeType", isByNtp ? "NTP" : "Manual");
    time.add("tt:DaylightSavings", hasDaylightSaving(call.device));
    time.add("tt:TimeZone").add("tt:TZ", timeZoneOf(call.device));
    writeTime(time.add("tt:UTCDateTime"), utcOf(call.device, call.now));
    writeTime(time.add("tt:LocalDateTime"), call.now + call.device.maintenance.clockAhead.count());
    return std::nullopt;
}

ServiceResult setSystemDateAndTime(ServiceCall &call)
{
    const QString type = textAt(call.request, "tds:DateTimeType").value_or(QString());
    const QString zone = textAt(call.request, "tds:TimeZone/tt:TZ").value_or(timeZoneOf(call.device));
    const bool withDaylightSaving = textAt(call.request, "tds:DaylightSavings") == u"true" ||
                                    textAt(call.request, "tds:DaylightSavings") == u"1";
    const bool isManual = type == u"Manual";
    const pugi::xml_node given = childNamed(call.request, "tds:UTCDateTime");
    const std::optional<QDateTime> utc = readTime(given);
    if (!isManual && type != u"NTP")
        return SoapFault::invalid("ter:InvalidDateTime", u"The type of date and time is unknown"_s);
    if (isManual && given && !utc)
        return SoapFault::invalid("ter:InvalidDateTime", u"The date or time is invalid"_s);
    const std::int64_t newUtc = isManual && utc ? utc->toMSecsSinceEpoch() : utcOf(call.device, call.now);
    if (!offsetOf(zone, withDaylightSaving, newUtc))
        return SoapFault::invalid("ter:InvalidTimeZone", u"The time zone is invalid"_s);
    const sdk::NetError error = call.change([&](SceneDevice &device) {
        const std::int64_t ahead =
            std::chrono::milliseconds(*offsetOf(zone, withDaylightSaving, newUtc)).count();
        const QDateTime shown = QDateTime::fromMSecsSinceEpoch(newUtc + ahead, Qt::UTC);
        const auto part = [](int number) {
            return static_cast<std::uint32_t>(number);
        };
        sdk::NetError changed = setDeviceTime(device,
                                              {part(shown.date().year()), part(shown.date().month()),
                                               part(shown.date().day()), part(shown.time().hour()),
                                               part(shown.time().minute()), part(shown.time().second())},
                                              call.now);
        if (changed == sdk::NetError::None)
            changed = keepZone(device, zone, withDaylightSaving);
        if (changed == sdk::NetError::None)
            changed = keepNtp(device, [&](sdk::NtpRecord &record) { record.enabled = isManual ? 0 : 1; });
        return changed;
    });
    return resultOf(error, SoapFault::invalid("ter:InvalidDateTime", u"The device refuses this time"_s));
}

ServiceResult getNtp(ServiceCall &call)
{
    const auto record = configurationOf<sdk::NtpRecord>(call.device, "NTP");
    const bool isFromDhcp = serviceState(call.device, ntpFromDhcpKey).toBool();
    const QString server = sdk::demo::textOf(record.address);
    XmlElement information = call.response.add("tds:NTPInformation");
    information.add("tt:FromDHCP", isFromDhcp);
    if (server.isEmpty())
        return std::nullopt;
    XmlElement host = information.add(isFromDhcp ? "tt:NTPFromDHCP" : "tt:NTPManual");
    const QHostAddress address(server);
    if (address.isNull()) {
        host.add("tt:Type", "DNS");
        host.add("tt:DNSname", server);
    } else {
        const bool isIpv4 = address.protocol() == QAbstractSocket::IPv4Protocol;
        host.add("tt:Type", isIpv4 ? "IPv4" : "IPv6");
        host.add(isIpv4 ? "tt:IPv4Address" : "tt:IPv6Address", server);
    }
    return std::nullopt;
}

ServiceResult setNtp(ServiceCall &call)
{
    const bool isFromDhcp =
        textAt(call.request, "tds:FromDHCP") == u"true" || textAt(call.request, "tds:FromDHCP") == u"1";
    const pugi::xml_node host = childNamed(call.request, "tds:NTPManual");
    QString server;
    for (const char *kind : {"tt:IPv4Address", "tt:IPv6Address", "tt:DNSname"}) {
        if (server.isEmpty())
            server = textAt(host, kind).value_or(QString());
    }
    constexpr qsizetype longestName = 255;
    if (server.toUtf8().size() > longestName)
        return SoapFault::invalid("ter:InvalidDnsName", u"The name of the server is too long"_s);
    const QString type = textAt(host, "tt:Type").value_or(QString());
    if (type == u"IPv4" && QHostAddress(server).protocol() != QAbstractSocket::IPv4Protocol)
        return SoapFault::invalid("ter:InvalidIPv4Address", u"The address of the server is invalid"_s);
    const sdk::NetError error = call.change([&](SceneDevice &device) {
        const sdk::NetError changed = keepNtp(device, [&](sdk::NtpRecord &record) {
            if (!isFromDhcp)
                writePlain(record.address, server);
        });
        if (changed == sdk::NetError::None)
            setServiceState(device, ntpFromDhcpKey, isFromDhcp);
        return changed;
    });
    return resultOf(error, SoapFault::prohibited(u"The device refuses this server"_s));
}

} // namespace site
