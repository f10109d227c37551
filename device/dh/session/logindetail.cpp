#include "device/dh/session/logindetail.h"

#include "device/registry/loginresult.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "sdk/configrecords.h"
#include "sdk/loginblocks.h"
#include "sdk/streamblocks.h"

#include <algorithm>
#include <memory>

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t detailTextSize = 32768;
constexpr auto everyChannel = -1;

/// Inserts a text that is not empty; an empty one must not replace a known value.
void putText(QVariantMap &detail, QLatin1StringView key, const QString &text)
{
    if (!text.isEmpty())
        detail.insert(key, text);
}

/// Inserts a number; a negative one means unknown.
void putNumber(QVariantMap &detail, QLatin1StringView key, std::int32_t number)
{
    if (number >= 0)
        detail.insert(key, number);
}

// Each of the following functions returns false if the device does not respond: further requests would time
// out as well.

bool readAttributes(const ConfigSession &session, QVariantMap &detail)
{
    sdk::DeviceAttributes response{};
    if (!session.queryBlock(sdk::QueryCommand::DeviceAttributes, response, ConfigSession::usualWait))
        return !session.isDeviceAway();
    putText(detail, DeviceDetailKey::serial, fieldText(response.serialNumber));
    putText(detail, DeviceRowKey::vision, versionText(fieldText(response.softwareVersion)));
    putText(detail, DeviceRowKey::model, fieldText(response.detailModel));
    putText(detail, DeviceRowKey::mac, fieldText(response.mac));
    putNumber(detail, DeviceDetailKey::channelCount, response.videoInputs);
    putNumber(detail, DeviceDetailKey::alarmInputs, response.alarmInputs);
    putNumber(detail, DeviceDetailKey::disks, response.disks);
    return true;
}

/// Calls `take` with the record of a configuration, if it can be read.
template<typename Record, typename Take>
bool readRecord(const ConfigSession &session, const char *name, int channel, Take take)
{
    Record record{};
    const std::int32_t error = session.read(name, channel, record, detailTextSize, ConfigSession::usualWait);
    if (error == 0)
        take(record);
    return error == 0 || !isSessionLost(static_cast<std::uint32_t>(error));
}

bool readNetwork(const ConfigSession &session, QVariantMap &detail)
{
    return readRecord<sdk::NetworkRecord>(session, "Network", 0, [&](const sdk::NetworkRecord &record) {
        putText(detail, DeviceDetailKey::hostName, fieldText(record.hostName));
        putText(detail, DeviceRowKey::mac, fieldText(record.mac));
        putText(detail, DeviceDetailKey::address, fieldText(record.address));
        putText(detail, DeviceDetailKey::submask, fieldText(record.subnetMask));
        putText(detail, DeviceDetailKey::gateway, fieldText(record.gateway));
        detail.insert(DeviceDetailKey::dhcp, record.dhcpEnabled != 0);
    });
}

bool readService(const ConfigSession &session, QVariantMap &detail)
{
    return readRecord<sdk::ServiceRecord>(session, "DVRIP", 0, [&](const sdk::ServiceRecord &record) {
        putNumber(detail, DeviceDetailKey::servicePort, record.tcpPort);
        putNumber(detail, DeviceDetailKey::maximumConnections, record.maximumConnections);
    });
}

bool readHttps(const ConfigSession &session, QVariantMap &detail)
{
    return readRecord<sdk::HttpsRecord>(session, "Https", everyChannel, [&](const sdk::HttpsRecord &record) {
        putNumber(detail, DeviceDetailKey::httpsPort, record.enabled != 0 ? record.port : 0);
    });
}

bool readServices(const ConfigSession &session, QVariantMap &detail)
{
    const auto response = std::make_unique<sdk::NetworkServices>();
    if (!session.queryBlock(sdk::QueryCommand::NetworkServices, *response, ConfigSession::usualWait))
        return !session.isDeviceAway();
    putNumber(detail, DeviceDetailKey::webPort, response->webPort);
    putNumber(detail, DeviceDetailKey::rtspPort, response->rtspPort);
    return true;
}

bool readChannels(const ConfigSession &session, QVariantMap &detail)
{
    const auto response = std::make_unique<sdk::ChannelStates>();
    if (!session.queryChannelStates(*response, 1000ms))
        return !session.isDeviceAway();
    const std::size_t count = std::min<std::size_t>(response->count, response->states.size());
    const auto connected = std::count_if(
        response->states.cbegin(), response->states.cbegin() + static_cast<std::ptrdiff_t>(count),
        [](const sdk::ChannelState &state) { return state.connection == sdk::ChannelConnection::Connected; });
    if (count > 0)
        detail.insert(DeviceDetailKey::connectedCount, static_cast<int>(connected));
    return true;
}

} // namespace

QVariantMap loginDetail(const ConfigSession &session)
{
    QVariantMap detail;
    for (const auto read :
         {readAttributes, readNetwork, readService, readHttps, readServices, readChannels}) {
        if (!read(session, detail))
            break;
    }
    return detail;
}
