#include "sdk/demo/http/httpcommands.h"

#include "sdk/blocktext.h"
#include "sdk/camerablocks.h"
#include "sdk/clock.h"
#include "sdk/demo/device/channelitems.h"
#include "sdk/demo/device/deviceresponses.h"
#include "sdk/demo/device/maintenance.h"
#include "sdk/demo/device/searchresponses.h"
#include "sdk/demo/http/commandparameters.h"
#include "sdk/demo/site/sitestate.h"
#include "sdk/demo/streams/cardjpeg.h"
#include "sdk/demo/streams/liveproduction.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <random>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr char helpText[] = R"(Commands of this device. Characters outside ASCII are percent-encoded UTF-8.

/cgi-bin/help                                  this text
/cgi-bin/device?get=name                       also type, model, version, serial, mac, address, channels, time, all
/cgi-bin/device?set=name&value=Entrance        gives the device another name
/cgi-bin/time                                  the device's clock
/cgi-bin/time?set=2024-05-06%2007:08:09        sets it
/cgi-bin/picture?channel=1&mode=day            picture settings; modes are day, night and normal
/cgi-bin/picture?channel=1&brightness=60       also contrast, saturation, hue and gamma, each from 0 to 100
/cgi-bin/snapshot?channel=1                    a picture, image/jpeg
/cgi-bin/recording?channel=1&seconds=5         a recording of up to 60 seconds, application/octet-stream
/cgi-bin/reboot                                restarts the device
)";

HttpResponse refusal(const QString &why)
{
    return HttpResponse::line(HttpStatus::BadRequest, why);
}

QString shownTime(const SceneDevice &device, std::int64_t now)
{
    return QDateTime::fromMSecsSinceEpoch(now + device.maintenance.clockAhead.count(), Qt::UTC)
        .toString(u"yyyy-MM-dd hh:mm:ss"_s);
}

template<std::size_t size>
QByteArray bytesOf(const std::array<char, size> &field)
{
    const std::string_view text = blockText(field);
    return {text.data(), static_cast<qsizetype>(text.size())};
}

QByteArray keyAndValue(const QString &key, const QByteArray &value)
{
    return key.toUtf8() + '=' + value + '\n';
}

/// The values that a device reports, with its faults applied to strings.
QList<std::pair<QString, QByteArray>> deviceValues(const SceneDevice &device, std::int64_t now)
{
    const SearchDeviceInformation reported = searchResponse(device, 4, QString()).device;
    const QString address = device.address.isEmpty() ? device.ipv6 : device.address;
    return {{u"name"_s, bytesOf(reported.deviceName)},
            {u"type"_s, bytesOf(reported.deviceType)},
            {u"model"_s, bytesOf(reported.detailModel)},
            {u"version"_s, bytesOf(reported.softwareVersion)},
            {u"serial"_s, bytesOf(reported.serialNumber)},
            {u"mac"_s, device.mac.toLatin1()},
            {u"address"_s, address.toLatin1()},
            {u"channels"_s, QByteArray::number(device.channels.size())},
            {u"time"_s, shownTime(device, now).toLatin1()}};
}

/// One running command: its device and its parameters.
class Command
{
public:
    Command(SiteState &site, const SceneDevice &device, const QByteArray &query)
        : m_site(site), m_device(device), m_parameters(query), m_now(site.clock().now())
    {
    }

    HttpResponse help();
    HttpResponse device();
    HttpResponse time();
    HttpResponse picture();
    HttpResponse snapshot();
    HttpResponse recording();
    HttpResponse reboot();

private:
    [[nodiscard]] int channel();
    /// Whether every parameter is known and valid.
    [[nodiscard]] bool isValid();
    HttpResponse parameterError() { return refusal(m_parameters.error()); }
    /// Calls `change` with the device. Returns false if the device refuses.
    bool change(const std::function<NetError(SceneDevice &device)> &change);
    template<typename Item>
    [[nodiscard]] std::optional<Item> item(std::uint32_t number, int channel, std::int32_t selector) const;
    [[nodiscard]] VideoFormatItem mainStream(int channel) const;

    SiteState &m_site;
    const SceneDevice m_device;
    CommandParameters m_parameters;
    const std::int64_t m_now;
};

int Command::channel()
{
    const int most = std::max(1, static_cast<int>(m_device.channels.size()));
    const int channel = m_parameters.number(u"channel"_s, 1, most, 1);
    if (!item<ChannelNameItem>(static_cast<std::uint32_t>(CameraItem::ChannelName), channel, 0))
        m_parameters.reportError(u"channel %1 is not connected"_s.arg(channel));
    return channel;
}

bool Command::isValid()
{
    m_parameters.rejectOthers();
    return m_parameters.error().isEmpty();
}

bool Command::change(const std::function<NetError(SceneDevice &device)> &change)
{
    NetError error = NetError::ConnectFailed; // if the device was removed from the site meanwhile
    m_site.changeDevice(m_device.mac,
                        [&](SceneDevice &device, const DeviceAddresses &) { error = change(device); });
    return error == NetError::None;
}

template<typename Item>
std::optional<Item> Command::item(std::uint32_t number, int channel, std::int32_t selector) const
{
    const std::optional<QByteArray> block = channelItem(m_device, {number, channel - 1, selector});
    if (!block || block->size() != static_cast<qsizetype>(sizeof(Item)))
        return std::nullopt;
    Item item = {};
    std::memcpy(&item, block->constData(), sizeof(item));
    return item;
}

VideoFormatItem Command::mainStream(int channel) const
{
    const std::int32_t stream = streamNumber(StreamKind::MainNormal);
    return item<VideoFormatItem>(static_cast<std::uint32_t>(EncodeItem::VideoFormat), channel, stream)
        .value_or(VideoFormatItem());
}

HttpResponse Command::help()
{
    if (!isValid())
        return parameterError();
    HttpResponse response;
    response.body = helpText;
    return response;
}

HttpResponse Command::device()
{
    const auto values = deviceValues(m_device, m_now);
    if (m_parameters.has(u"set"_s)) {
        m_parameters.choice(u"set"_s, {u"name"_s}, 0);
        const QString name = m_parameters.text(u"value"_s).value_or(QString());
        constexpr qsizetype longestName = sizeof(SearchDeviceInformation::deviceName) - 1;
        if (name.trimmed().isEmpty() || name.toUtf8().size() > longestName)
            m_parameters.reportError(u"value must be a name of 1 to %1 bytes"_s.arg(longestName));
        if (!isValid())
            return parameterError();
        if (!change([&name](SceneDevice &device) {
                device.name = name;
                return NetError::None;
            }))
            return refusal(u"The device was removed"_s);
        return HttpResponse::line(HttpStatus::Ok, u"name="_s + name);
    }
    QStringList known = {u"all"_s};
    for (const auto &value : values)
        known.append(value.first);
    const int index = m_parameters.choice(u"get"_s, known, 0);
    if (!isValid())
        return parameterError();
    HttpResponse response;
    for (const auto &[key, value] : values) {
        if (index == 0 || key == known.at(index))
            response.body += keyAndValue(key, value);
    }
    return response;
}

HttpResponse Command::time()
{
    const std::optional<QString> given = m_parameters.text(u"set"_s);
    const QDateTime requested =
        given ? QDateTime::fromString(QString(*given).replace(u'T', u' '), u"yyyy-MM-dd hh:mm:ss"_s)
              : QDateTime();
    constexpr int firstYear = 2000;
    constexpr int lastYear = 2037;
    if (given && (!requested.date().isValid() || requested.date().year() < firstYear ||
                  requested.date().year() > lastYear))
        m_parameters.reportError(
            u"set must be a time from %1 to %2, as 2024-05-06%2007:08:09"_s.arg(firstYear).arg(lastYear));
    if (!isValid())
        return parameterError();
    if (!given)
        return HttpResponse::line(HttpStatus::Ok, u"time="_s + shownTime(m_device, m_now));
    const auto part = [](int number) {
        return static_cast<std::uint32_t>(number);
    };
    const QDate date = requested.date();
    const QTime hours = requested.time();
    const TimeRecord record = {part(date.year()),  part(date.month()),   part(date.day()),
                               part(hours.hour()), part(hours.minute()), part(hours.second())};
    if (!change([&](SceneDevice &device) { return setDeviceTime(device, record, m_now); }))
        return refusal(u"The device refuses to change its time"_s);
    return HttpResponse::line(HttpStatus::Ok, u"time="_s + requested.toString(u"yyyy-MM-dd hh:mm:ss"_s));
}

HttpResponse Command::picture()
{
    const int channel = this->channel();
    const int mode = m_parameters.choice(u"mode"_s, {u"day"_s, u"night"_s, u"normal"_s}, 0);
    constexpr auto number = static_cast<std::uint32_t>(CameraItem::Picture);
    std::optional<PictureItem> picture = item<PictureItem>(number, channel, mode);
    if (!picture)
        m_parameters.reportError(u"The image of channel %1 cannot be set"_s.arg(channel));
    PictureItem settings = picture.value_or(PictureItem());
    const std::array<std::pair<const char *, std::int32_t *>, 5> values = {
        {{"brightness", &settings.brightness},
         {"contrast", &settings.contrast},
         {"saturation", &settings.saturation},
         {"hue", &settings.hue},
         {"gamma", &settings.gamma}}};
    bool isChange = false;
    QByteArray reported;
    for (const auto &[key, value] : values) {
        const QString name = QString::fromLatin1(key);
        isChange = isChange || m_parameters.has(name);
        *value = m_parameters.number(name, 0, 100, *value);
        reported += keyAndValue(name, QByteArray::number(*value));
    }
    if (!isValid())
        return parameterError();
    const QByteArray block(reinterpret_cast<const char *>(&settings), sizeof(settings));
    if (isChange && !change([&](SceneDevice &device) {
            return setChannelItem(device, {number, channel - 1, mode}, block);
        }))
        return refusal(u"The device refuses these settings"_s);
    HttpResponse response;
    response.body = reported;
    return response;
}

HttpResponse Command::snapshot()
{
    const int channel = this->channel();
    if (!isValid())
        return parameterError();
    constexpr auto number = static_cast<std::uint32_t>(CameraItem::Picture);
    const std::optional<StreamSettings> settings =
        streamSettings(m_device, channel - 1, LiveStreamKind::Main);
    if (!settings)
        return refusal(u"The channel has no image"_s);
    const auto picture = item<PictureItem>(number, channel, 0);
    constexpr int usualBrightness = 50;
    HttpResponse response;
    response.contentType = "image/jpeg";
    response.body = cardJpeg(testCardOf(m_device, channel - 1, LiveStreamKind::Main, *settings),
                             m_now + m_device.maintenance.clockAhead.count(),
                             picture ? picture->brightness : usualBrightness);
    return response;
}

/// As long as a recording of that duration. Its content is not playable.
HttpResponse Command::recording()
{
    const int channel = this->channel();
    constexpr int longest = 60;
    const int seconds = m_parameters.number(u"seconds"_s, 1, longest, 5);
    if (!isValid())
        return parameterError();
    constexpr qint64 bytesPerKilobit = 125;
    constexpr qsizetype blockSize = qsizetype{64} * 1024;
    HttpResponse response;
    response.contentType = "application/octet-stream";
    response.length = std::max(1, mainStream(channel).bitRate) * bytesPerKilobit * seconds;
    response.body.resize(blockSize);
    std::minstd_rand bytes; // with a constant seed: the same content for each request
    for (char &byte : response.body)
        byte = static_cast<char>(bytes());
    return response;
}

HttpResponse Command::reboot()
{
    if (!isValid())
        return parameterError();
    if (!change([this](SceneDevice &device) { return rebootAfterResponse(device, m_now); }))
        return refusal(u"The device refuses to restart"_s);
    return HttpResponse::line(HttpStatus::Ok, u"reboot=started"_s);
}

struct Entry
{
    const char *path;
    HttpResponse (Command::*run)();
};

constexpr std::array commands = {
    Entry{"/cgi-bin/help", &Command::help},         Entry{"/cgi-bin/device", &Command::device},
    Entry{"/cgi-bin/time", &Command::time},         Entry{"/cgi-bin/picture", &Command::picture},
    Entry{"/cgi-bin/snapshot", &Command::snapshot}, Entry{"/cgi-bin/recording", &Command::recording},
    Entry{"/cgi-bin/reboot", &Command::reboot},
};

} // namespace

HttpResponse runHttpCommand(SiteState &site, const QString &mac, const HttpTarget &target)
{
    const std::optional<SceneDevice> device = site.device(mac);
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&target](const Entry &entry) { return target.path == entry.path; });
    if (!device || found == commands.end())
        return HttpResponse::line(HttpStatus::NotFound,
                                  u"Unknown command; /cgi-bin/help lists the commands"_s);
    Command command(site, *device, target.query);
    return (command.*found->run)();
}

} // namespace sdk::demo
