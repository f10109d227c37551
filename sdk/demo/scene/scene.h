// A simulated site as data: the content of a scene file.
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

inline constexpr int maximumSceneDevices = 20000; ///< of a scene

/// An account of a device.
struct SceneAccount
{
    QString user;
    QString password;
};

/// A video input of a device.
struct SceneChannel
{
    QString name;          ///< if empty, the channel is named after its device and its number
    bool connected = true; ///< whether it has a camera
};

/// The maintenance state of a device, apart from its accounts and its configuration. Not part of scene files.
struct SceneMaintenance
{
    std::chrono::milliseconds clockAhead{0}; ///< offset of the device's clock from the site's clock
    std::int64_t offlineFrom = 0;            ///< start of the last reboot, on the site's clock, in ms since
                                             ///< 1970; it may be in the future
    std::int64_t offlineUntil = 0;           ///< end of that reboot, on the same clock
    VideoStandard videoStandard = VideoStandard::Pal;
};

/// The authentication scheme of a web service.
enum class HttpAuthenticationKind
{
    Digest,
    Basic,
};

/// One simulated device: its data in the scene, and its state after the requests to it. A copy is independent
/// of the site.
struct SceneDevice
{
    QString mac;     ///< "02:1a:c5:00:40:17", lower case: the identity of the device
    QString address; ///< IPv4; "0.0.0.0" while unset; empty when the device speaks IPv6 only
    QString ipv6;    ///< canonical IPv6 address; empty when the device speaks IPv4 only
    int ipv6PrefixLength = 64;
    QString mask;    ///< dotted
    QString gateway; ///< dotted; empty without one
    bool dhcp = false;
    int port = 0;      ///< service port, 1 to 65535
    int httpPort = 80; ///< 0 without a web service
    HttpAuthenticationKind httpAuthentication = HttpAuthenticationKind::Digest;
    QString name;
    QString type; ///< "IPC", "NVR", ...
    QString model;
    QString version;
    QString serial;
    InitialisationBits initialisation = InitialisationBits::Initialised;
    std::uint8_t resetWay = 0; ///< as SearchDeviceInformation::passwordResetWay
    QString p2pId;             ///< the device's ID at the port agent; empty without one
    QList<SceneAccount> accounts;
    QList<SceneChannel> channels;    ///< empty: one connected channel, although 0 video inputs are reported
    QJsonObject capabilities;        ///< as in scene files: scenes/README.md
    ChannelSettings channelSettings; ///< settings that were written to the channels; not part of scene files
    QJsonObject configuration;       ///< by name; its keys override those of the device's own state
    std::chrono::milliseconds latency{100}; ///< from a search to the response
    bool inOtherSegment = false;  ///< not found by local searches; responds to searches of its address
    bool isRemote = false;        ///< reachable only through the port agent; `inOtherSegment` is true as well
    bool knowsFirstSearch = true; ///< false: responds only to the second kind (…Ex) of search
    QList<FaultSetting> faults;   ///< each fault at most once
    SceneMaintenance maintenance;

    /// Whether the device receives searches and requests at `time` (ms since 1970) of the site's clock: false
    /// during a reboot and with Fault::NoAnswer.
    [[nodiscard]] bool isListening(std::int64_t time) const
    {
        const bool isOffline = time >= maintenance.offlineFrom && time < maintenance.offlineUntil;
        return !isOffline && !hasFault(Fault::NoAnswer);
    }

    /// The device's setting of `requested`; nullopt if the device does not have that fault.
    [[nodiscard]] std::optional<FaultSetting> fault(Fault requested) const
    {
        const auto found =
            std::find_if(faults.begin(), faults.end(),
                         [requested](const FaultSetting &setting) { return setting.fault == requested; });
        return found == faults.end() ? std::nullopt : std::optional(*found);
    }
    [[nodiscard]] bool hasFault(Fault requested) const { return fault(requested).has_value(); }

    /// Whether the device is not initialised, by its state or by Fault::NotInitialised.
    [[nodiscard]] bool isUninitialised() const
    {
        return initialisation == InitialisationBits::Uninitialised || hasFault(Fault::NotInitialised);
    }

    /// No effect if the device does not have the fault.
    void clearFault(Fault fault)
    {
        faults.removeIf([fault](const FaultSetting &setting) { return setting.fault == fault; });
    }
};

/// The devices of a site, and this host in its network.
struct Scene
{
    QString title;
    QString description;
    QString localAddress = QStringLiteral("192.168.1.250");     ///< of this host in the local segment
    QString localIpv6 = QStringLiteral("fe80::1a:c5ff:fe00:1"); ///< of this host, canonical
    QList<SceneDevice> devices;                                 ///< MACs are unique
};

} // namespace sdk::demo
