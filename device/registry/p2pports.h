#pragma once

#include "sdk/p2pagentlibrary.h"

#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

/// Addresses of the services of the port agent.
struct P2PSettings
{
    QString tunnelHost;
    int tunnelPort = 0;
    QString relayHost;
    int relayPort = 0;
    QString domain;
    QString restAddress;
    QString mediaHost;
    int mediaPort = 0;

    /// The settings without a settings file.
    [[nodiscard]] static P2PSettings builtIn();

    /// Reads the settings from an INI file; returns builtIn() if it is missing. A missing key is an empty
    /// string or 0.
    [[nodiscard]] static P2PSettings read(const QString &file);
};

/// The local ports that the port agent maps to ports of devices behind NAT. A device has a login port for its
/// service and may have a web port. Owned by the factory and shared with the back ends. The constructor
/// starts the agent, the destructor stops it. Thread-safe.
class P2PPorts
{
public:
    /// Starts the agent. Without a library, or if the agent does not start, every request for a port fails.
    P2PPorts(std::shared_ptr<sdk::P2PAgentLibrary> library, const P2PSettings &settings,
             sdk::P2PAgentMessageHandler handler);
    ~P2PPorts();
    P2PPorts(const P2PPorts &) = delete;
    P2PPorts &operator=(const P2PPorts &) = delete;

    /// The local port of `devicePort` of the device, 0 on failure. A `requestedPort` other than 0 must be
    /// equal to `devicePort`. Blocks until the agent responds. Requests are serialised, so that two requests
    /// for the same device get the same port.
    [[nodiscard]] int portFor(const QString &deviceId, int devicePort, int requestedPort);

    /// portFor() without a requested port. The mapping is kept until each caller has called giveBack().
    [[nodiscard]] int claim(const QString &deviceId, int devicePort);

    /// Ends a claim(). Removes the mapping if the port has no other claim, is not known (see isKnown()), and
    /// `isListed` returns false: no row has it.
    void giveBack(int localPort, const std::function<bool()> &isListed);

    /// The reason why requests fail for every device, in the user's language: a missing or invalid setting,
    /// or an agent that did not start. Otherwise empty.
    [[nodiscard]] QString faultText() const;

    /// Removes a mapping. Does nothing for 0.
    void release(int localPort);

    /// Registers the login port of a device. Its web port is kept if it is registered already.
    void note(int loginPort);

    /// Whether a login port is registered by note() or pair() and not released since.
    [[nodiscard]] bool isKnown(int loginPort) const;

    /// Registers the login port and the web port of a device; 0 for no web port.
    void pair(int loginPort, int webPort);

    /// The web port of a login port, 0 for none.
    [[nodiscard]] int webPortOf(int loginPort) const;

    /// Releases the two ports of a device and ends their registration.
    void releaseDevice(int loginPort);

    /// Releases both ports of each registered device whose login port is not needed. `isNeeded` is called on
    /// the caller's thread and may use this object.
    void releaseUnneeded(const std::function<bool(int loginPort)> &isNeeded);

private:
    /// For portFor() and claim(). m_requestMutex must be locked.
    [[nodiscard]] int findOrAddPort(const QString &deviceId, int devicePort, int requestedPort);
    [[nodiscard]] int addPort(const QString &deviceId, int devicePort, int localPort);

    const std::shared_ptr<sdk::P2PAgentLibrary> m_library; ///< null if the agent was not started
    const QString m_settingFault; ///< key of a missing or invalid setting; empty for none
    std::mutex m_requestMutex;    ///< guards m_claims and the requests to the agent
    QHash<int, int> m_claims;     ///< numbers of claims by local port
    mutable std::mutex m_mutex;   ///< guards m_webPorts; not locked during requests to the agent
    QHash<int, int> m_webPorts;   ///< by login port; 0 for a device without a web port
};
