// A simulated site as data: what a scene file says.
#pragma once

#include "sdk/demo/scene/channelsettings.h"
#include "sdk/demo/scene/fault.h"
#include "sdk/searchblocks.h"
#include "sdk/systemblocks.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <algorithm>
#include <chrono>
#include <optional>

namespace sdk::demo {

inline constexpr int maximumSceneDevices = 20000;

/// A user of a device.
struct SceneAccount
{
    QString user;
    QString password;
};

/// A picture input of a device.
struct SceneChannel
{
    QString name;
    bool connected = true;
};

/// What a device's maintenance changes, beside its accounts and its configuration.
struct SceneMaintenance
{
    std::chrono::milliseconds clockAhead{0}; ///< of the site's clock, as the device's own clock stands
    std::int64_t awayFrom = 0;               ///< on the site's clock: the device reboots from here
    std::int64_t awayUntil = 0;              ///< until there
    VideoStandard videoStandard = VideoStandard::Pal;
};

/// What a device's web service asks for.
enum class HttpAuthenticationKind
{
    Digest,
    Basic,
};

/// One simulated device.
struct SceneDevice
{
    QString mac;     ///< "02:1a:c5:00:40:17", lower case: the identity of the device
    QString address; ///< IPv4; "0.0.0.0" while unset; empty when the device speaks IPv6 only
    QString ipv6;    ///< canonical IPv6 address; empty when the device speaks IPv4 only
    int ipv6PrefixLength = 64;
    QString mask;
    QString gateway;
    bool dhcp = false;
    int port = 0;      ///< service port, 1 to 65535
    int httpPort = 80; ///< 0 when it has no web page
    HttpAuthenticationKind httpAuthentication = HttpAuthenticationKind::Digest;
    QString name;
    QString type; ///< "IPC", "NVR", ...
    QString model;
    QString version;
    QString serial;
    InitialisationBits initialisation = InitialisationBits::Initialised;
    std::uint8_t resetWay = 0; ///< as SearchDeviceInformation::passwordResetWay
    QString p2pId;             ///< what the port agent knows the device by; empty when it does not
    QList<SceneAccount> accounts;
    QList<SceneChannel> channels;
    QJsonObject capabilities;
    ChannelSettings channelSettings;        ///< what was written to the channels; not part of scene files
    QJsonObject configuration;              ///< by name; laid over what the device tells of its own state
    std::chrono::milliseconds latency{100}; ///< from a request to the device's answer
    bool inOtherSegment = false;  ///< out of reach of local searches; answers when its address is asked
    bool isRemote = false;        ///< out of reach of everything but the port agent
    bool knowsFirstSearch = true; ///< false: answers only the second kind (…Ex) of search
    QList<FaultSetting> faults;   ///< each fault at most once
    SceneMaintenance maintenance;

    /// Whether the device hears anything at `time` of the site's clock.
    [[nodiscard]] bool isListening(std::int64_t time) const
    {
        const bool isAway = time >= maintenance.awayFrom && time < maintenance.awayUntil;
        return !isAway && !hasFault(Fault::NoAnswer);
    }

    /// The device's setting of `wanted`; nothing while the device does not have that fault.
    [[nodiscard]] std::optional<FaultSetting> fault(Fault wanted) const
    {
        const auto found = std::find_if(faults.begin(), faults.end(), [wanted](const FaultSetting &setting) {
            return setting.fault == wanted;
        });
        return found == faults.end() ? std::nullopt : std::optional(*found);
    }
    [[nodiscard]] bool hasFault(Fault wanted) const { return fault(wanted).has_value(); }

    /// Whether the device waits for its first password.
    [[nodiscard]] bool isUninitialised() const
    {
        return initialisation == InitialisationBits::Uninitialised || hasFault(Fault::NotInitialised);
    }

    void clearFault(Fault fault)
    {
        faults.removeIf([fault](const FaultSetting &setting) { return setting.fault == fault; });
    }
};

struct Scene
{
    QString title;
    QString description;
    QString localAddress = QStringLiteral("192.168.1.250"); ///< of this computer, as devices see it
    QString localIpv6 = QStringLiteral("fe80::1a:c5ff:fe00:1");
    QList<SceneDevice> devices; ///< MACs are unique
};

} // namespace sdk::demo
