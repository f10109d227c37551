#pragma once

#include "sdk/p2pagentlibrary.h"

#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

/// Addresses of the services that the port agent uses. Hosts are names or addresses, ports 1 to 65535. All
/// members except `domain` are required.
struct P2PSettings
{
    QString tunnelHost;
    int tunnelPort = 0;
    QString relayHost;
    int relayPort = 0;
    QString domain;
    QString restAddress; ///< URL
    QString mediaHost;
    int mediaPort = 0;

    /// The settings that are used without a settings file.
    [[nodiscard]] static P2PSettings builtIn();

    /// Reads the settings from an INI file (a path); returns builtIn() if it does not exist. The value of a
    /// missing key is an empty string or 0. Values are not checked here.
    [[nodiscard]] static P2PSettings read(const QString &file);
};

/// The local ports that the port agent maps to ports of devices behind NAT. The host reaches such a device at
/// 127.0.0.1 and the local port. A device has a login port (the local port of its service) and may have a web
/// port (the local port of its web page). A mapping exists from portFor() or claim() until it is removed. The
/// registration of a login port, by note() or pair(), only records which mappings releaseUnneeded() may
/// remove.
///
/// Owned by the factory and shared with the back ends. The destructor stops the agent, which removes all
/// mappings. Thread-safe.
class P2PPorts
{
public:
    /// Starts the agent, which calls `handler` with its events, on its threads. Without a library (null), or
    /// if the agent does not start, every request for a port fails, see faultText().
    P2PPorts(std::shared_ptr<sdk::P2PAgentLibrary> library, const P2PSettings &settings,
             sdk::P2PAgentMessageHandler handler);
    ~P2PPorts();
    P2PPorts(const P2PPorts &) = delete;
    P2PPorts &operator=(const P2PPorts &) = delete;

    /// Returns a local port that is mapped to `devicePort` of the device with this P2P ID; 0 on failure.
    /// `requestedPort` is 0, or `devicePort` to request the local port of this number; any other value fails.
    /// Without a mapping, one is added, and the agent chooses its port in either case. A single mapping is
    /// used if its number is `devicePort` and that was requested, or if neither is the case; otherwise a
    /// second mapping is added. Of several mappings, the first with another number than `devicePort` is
    /// returned. Blocks until the agent responds. Requests run one after another, so that two requests for
    /// the same device get the same port.
    [[nodiscard]] int portFor(const QString &deviceId, int devicePort, int requestedPort);

    /// portFor() without a requested port, for temporary use. Each successful call must be followed by
    /// giveBack().
    [[nodiscard]] int claim(const QString &deviceId, int devicePort);

    /// Ends a claim(). Then removes the mapping, if the port has no other claim, no device is registered with
    /// it as its login port, and `isListed` returns false: no row of the list uses it. `isListed` must not
    /// call claim(), portFor() or giveBack().
    void giveBack(int localPort, const std::function<bool()> &isListed);

    /// The reason why requests fail for every device, in the user's language: an agent that did not start, or
    /// a missing or invalid setting, which an agent that has started may not need. Otherwise empty.
    [[nodiscard]] QString faultText() const;

    /// Removes the mapping of a local port. Does nothing for 0. Ends no registration.
    void release(int localPort);

    /// Registers the login port of a device, without a web port. A registered login port keeps its web port.
    void note(int loginPort);

    /// Whether this login port is registered.
    [[nodiscard]] bool isKnown(int loginPort) const;

    /// Registers the login port of a device and its web port, 0 for none. Replaces an earlier web port.
    void pair(int loginPort, int webPort);

    /// The web port of a registered login port; 0 if it has none or is not registered.
    [[nodiscard]] int webPortOf(int loginPort) const;

    /// Removes the mappings of the login port and of its web port, and ends the registration.
    void releaseDevice(int loginPort);

    /// Calls releaseDevice() for each registered login port for which `isNeeded` returns false. `isNeeded` is
    /// called on the caller's thread and may use this object.
    void releaseUnneeded(const std::function<bool(int loginPort)> &isNeeded);

private:
    // For portFor() and claim(). m_requestMutex must be locked. Return a local port, 0 on failure.
    [[nodiscard]] int findOrAddPort(const QString &deviceId, int devicePort, int requestedPort);
    /// `localPort` is 0 if the agent chooses it.
    [[nodiscard]] int addPort(const QString &deviceId, int devicePort, int localPort);

    const std::shared_ptr<sdk::P2PAgentLibrary> m_library; ///< null if the agent was not started
    const QString m_settingFault; ///< key of a missing or invalid setting; empty for none
    std::mutex m_requestMutex;    ///< guards m_claims and the requests to the agent
    QHash<int, int> m_claims;     ///< numbers of claims by local port
    mutable std::mutex m_mutex;   ///< guards m_webPorts; not locked during requests to the agent
    QHash<int, int> m_webPorts;   ///< by login port; 0 for a device without a web port
};
