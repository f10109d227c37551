#include "device/dh/logins/rowlogin.h"

#include "device/dh/session/configsession.h"
#include "device/store/devicerow.h"
#include "sdk/blocktext.h"
#include "sdk/configrecords.h"
#include "sdk/netlibrary.h"

#include <mutex>

using namespace std::chrono_literals;

namespace {

constexpr auto attributesWait = 500ms;
constexpr auto configurationWait = 5000ms;
constexpr auto httpsWait = 500ms;
constexpr auto directedSearchWait = 3000ms;
constexpr std::uint32_t configurationTextSize = 32768;
constexpr std::uint32_t httpsTextSize = 1024;
constexpr int defaultWebPort = 80;

const QString loopback = QStringLiteral("127.0.0.1");

/// The type name of a device type code.
QString typeName(std::uint8_t code)
{
    switch (static_cast<sdk::DeviceTypeCode>(code)) {
    case sdk::DeviceTypeCode::Camera:
        return QStringLiteral("IPC");
    case sdk::DeviceTypeCode::Recorder:
        return QStringLiteral("NVR");
    case sdk::DeviceTypeCode::VideoServer:
    case sdk::DeviceTypeCode::VideoServerSecond:
        return QStringLiteral("SVR");
    case sdk::DeviceTypeCode::SpeedDome:
        return QStringLiteral("SD");
    case sdk::DeviceTypeCode::TrafficCamera:
        return QStringLiteral("ITC");
    case sdk::DeviceTypeCode::VideoWall:
        return QStringLiteral("Matrix");
    case sdk::DeviceTypeCode::ComputerRecorder:
        return QStringLiteral("PC-NVR");
    default:
        return otherDeviceType();
    }
}

QString loginTypeName(ReachedBy reachedBy)
{
    switch (reachedBy) {
    case ReachedBy::Address:
        return QStringLiteral("IP");
    case ReachedBy::P2P:
        return QStringLiteral("P2P");
    }
    return otherDeviceType();
}

/// The responses of a device after login; zero for a query without response.
struct Responses
{
    sdk::DeviceAttributes attributes{};
    sdk::NetworkRecord network{};
    sdk::ServiceRecord service{};
    sdk::HttpsRecord https{};
    sdk::NetworkServices services{};
};

/// Queries the device. Returns nullopt if `control` ends the step between two queries. A record that cannot
/// be read is zero.
std::optional<Responses> queryDevice(const ConfigSession &session, const StepControl &control)
{
    Responses responses;
    session.queryBlock(sdk::QueryCommand::DeviceAttributes, responses.attributes, attributesWait);
    const auto read = [&](const char *name, int channel, std::uint32_t size, std::chrono::milliseconds wait,
                          auto &record) {
        if (!control.shouldEnd())
            (void)session.read(name, channel, record, size, wait);
    };
    read("Network", 0, configurationTextSize, configurationWait, responses.network);
    read("DVRIP", 0, configurationTextSize, configurationWait, responses.service);
    read("Https", -1, httpsTextSize, httpsWait, responses.https);
    if (control.shouldEnd())
        return std::nullopt;
    session.queryBlock(sdk::QueryCommand::NetworkServices, responses.services, configurationWait);
    return responses;
}

QString macOf(const Responses &responses)
{
    const QString mac = fieldText(responses.network.mac);
    return mac.isEmpty() ? fieldText(responses.attributes.mac) : mac;
}

int webPort(const Responses &responses)
{
    const int port = responses.https.enabled != 0 ? responses.https.port : responses.services.webPort;
    return port > 0 && port <= 65535 ? port : defaultWebPort;
}

/// Stores the response to a directed search, which arrives on a thread of the library.
class DirectedResponse
{
public:
    static void handle(std::int64_t, const sdk::SearchResponse *response, void *user)
    {
        auto *self = static_cast<DirectedResponse *>(user);
        if (!response || response->size != sizeof(*response))
            return;
        const std::scoped_lock lock(self->m_mutex);
        if (!self->m_response)
            self->m_response = *response;
    }

    [[nodiscard]] std::optional<sdk::SearchResponse> response() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_response;
    }

private:
    mutable std::mutex m_mutex;
    std::optional<sdk::SearchResponse> m_response;
};

std::optional<sdk::SearchResponse> searchAddress(sdk::NetLibrary &net, const QString &address)
{
    sdk::SearchByAddressesRequest request{};
    request.size = sizeof(request);
    request.count = 1;
    sdk::setBlockText(request.addresses[0], address.toLocal8Bit().toStdString());
    DirectedResponse response;
    net.NetSearchDeviceByIp(request, &DirectedResponse::handle, &response, directedSearchWait);
    return response.response();
}

QJsonObject rowOf(const RowLoginRequest &request, const sdk::LoginDeviceInformation &device,
                  const Responses &responses)
{
    const bool p2p = request.reachedBy == ReachedBy::P2P;
    QJsonObject row = {
        {DeviceRowKey::username, request.account},
        {DeviceRowKey::checked, false},
        {DeviceRowKey::num, QString()},
        {DeviceRowKey::state, true},
        {DeviceRowKey::name, QString()},
        {DeviceRowKey::type, typeName(device.deviceType)},
        {DeviceRowKey::loginType, loginTypeName(request.reachedBy)},
        {DeviceRowKey::model, fieldText(device.model)},
        {DeviceRowKey::ipport,
         (p2p ? loopback : request.address) + QLatin1Char(':') + QString::number(request.port)},
        {DeviceRowKey::mac, macOf(responses)},
        {DeviceRowKey::vision, versionText(fieldText(responses.attributes.softwareVersion))},
        {DeviceRowKey::url, QString()},
        {DeviceRowKey::result, QString()},
        {DeviceRowKey::res, -1},
        {DeviceRowKey::operate, QString()},
        {DeviceRowKey::filepath, QString()},
        {DeviceRowKey::upgrade, 0},
        {DeviceRowKey::upgraderes, -1},
        {DeviceRowKey::password, request.password},
        {DeviceRowKey::httpport, webPort(responses)},
        {DeviceRowKey::loggedIn, true},
        {DeviceRowKey::https, responses.https.enabled != 0 && responses.https.port > 0},
    };
    if (p2p) {
        row.insert(DeviceRowKey::name, request.address);
        row.insert(DeviceRowKey::devp2pPort, request.devicePort);
    }
    return row;
}

/// Replaces name, MAC and version by those of a search response.
void completeFrom(QJsonObject &row, const sdk::SearchResponse &response)
{
    const QJsonObject found = ipv4Row(response);
    for (const QLatin1StringView key : {DeviceRowKey::name, DeviceRowKey::mac, DeviceRowKey::vision}) {
        if (!found.value(key).toString().isEmpty())
            row.insert(key, found.value(key));
    }
}

} // namespace

RowLoginOutcome loginForRow(const sdk::SdkLibraries &libraries, const RowLoginRequest &request,
                            const StepControl &control)
{
    if (!libraries.net)
        return {.result = LoginResult::NetworkFailure, .row = {}, .record = {}};
    sdk::NetLibrary &net = *libraries.net;
    const bool p2p = request.reachedBy == ReachedBy::P2P;

    sdk::LoginDeviceInformation device{};
    std::int32_t error = 0;
    const std::int64_t handle =
        net.NetLogin((p2p ? loopback : request.address).toLocal8Bit().constData(), request.port,
                     request.account.toLocal8Bit().constData(), request.password.toLocal8Bit().constData(), 0,
                     nullptr, device, error);
    if (handle < 1)
        return {.result = loginResultOf(net.NetGetLastError()), .row = {}, .record = {}};

    RowLoginOutcome outcome{.result = LoginResult::NotDone, .row = {}, .record = {}};
    if (const std::optional<Responses> responses = queryDevice(ConfigSession(libraries, handle), control))
        outcome = {.result = LoginResult::Success, .row = rowOf(request, device, *responses), .record = {}};
    if (!p2p && outcome.result == LoginResult::Success && !control.shouldEnd()) {
        outcome.record = searchAddress(net, request.address);
        if (outcome.record)
            completeFrom(outcome.row, *outcome.record);
    }
    net.NetLogout(handle);
    return outcome;
}
