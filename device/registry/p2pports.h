#pragma once

#include "sdk/p2pagentlibrary.h"

#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

/// Where the services of the port agent are.
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

    /// What is used where there is no settings file.
    [[nodiscard]] static P2PSettings builtIn();

    /// Reads every key from the file, in the settings reader's INI format; built-in values only when there is
    /// no such file. A key that is missing reads as an empty text or 0.
    [[nodiscard]] static P2PSettings read(const QString &file);
};

/// The local ports that lead to devices behind NAT: starts the agent, hands ports out, knows which belong
/// together, and stops the agent when it is destroyed. Thread-safe: devices are added on several threads.
class P2PPorts
{
public:
    /// Starts the agent. Without a library, or when the agent does not start, every request for a port fails.
    P2PPorts(std::shared_ptr<sdk::P2PAgentLibrary> library, const P2PSettings &settings,
             sdk::P2PAgentMessageHandler handler);
    ~P2PPorts();
    P2PPorts(const P2PPorts &) = delete;
    P2PPorts &operator=(const P2PPorts &) = delete;

    /// A local port that leads to `devicePort` of the device, 0 on failure. A requested port is given only
    /// when it equals the device port; 0 requests none. Blocks for the agent; requests wait for each other,
    /// so that two for the same device get the same port.
    [[nodiscard]] int portFor(const QString &deviceId, int devicePort, int requestedPort);

    /// A local port as portFor() gives it when none is requested. It stays until each caller has given it
    /// back.
    [[nodiscard]] int claim(const QString &deviceId, int devicePort);

    /// Removes the mapping of a port that was claimed, unless another caller has claimed it too, a device is
    /// known by it, or `isListed` says that a row has it.
    void giveBack(int localPort, const std::function<bool()> &isListed);

    /// Why a request for a port may fail whatever the device: a setting that is missing or wrong, or an agent
    /// that did not start. In the user's language; empty when neither is so.
    [[nodiscard]] QString faultText() const;

    /// Removes a mapping.
    void release(int localPort);

    /// Remembers that a device is reached by `loginPort`.
    void note(int loginPort);

    /// True for a login port of note() or pair() that was not released since.
    [[nodiscard]] bool isKnown(int loginPort) const;

    /// Remembers that a device's web page is reached by `webPort` while its service is by `loginPort`.
    void pair(int loginPort, int webPort);

    /// The web port that belongs to a login port, 0 when there is none.
    [[nodiscard]] int webPortOf(int loginPort) const;

    /// Releases the two ports of a device.
    void releaseDevice(int loginPort);

    /// Releases the two ports of every known device whose login port is not needed.
    void releaseUnneeded(const std::function<bool(int loginPort)> &isNeeded);

private:
    /// Of portFor(), with m_requestMutex held.
    [[nodiscard]] int findOrAddPort(const QString &deviceId, int devicePort, int requestedPort);
    [[nodiscard]] int addPort(const QString &deviceId, int devicePort, int localPort);

    const std::shared_ptr<sdk::P2PAgentLibrary> m_library; ///< null when the agent could not be started
    const QString m_settingFault; ///< the key of the setting that is missing or wrong; empty for none
    std::mutex m_requestMutex;    ///< of m_claims and of what asks the agent: one request at a time
    QHash<int, int> m_claims;     ///< callers that work with a local port
    mutable std::mutex m_mutex;   ///< of m_webPorts; not held while the agent is asked
    QHash<int, int> m_webPorts;   ///< by login port; 0 for a device whose web page has no port
};
