// One device of the site on the network.
#pragma once

#include "site/discovery/discoveryport.h"
#include "site/network/deviceinterface.h"
#include "site/rtsp/rtspport.h"
#include "site/siteoptions.h"

#include "sdk/demo/scene/scene.h"

#include <memory>

namespace sdk::demo {
class DeviceKey;
}

namespace site {

class HttpServer;
class Poller;

/// The interface and the sockets of one device of the scene. follow() adapts them to the state of the device.
/// Used by one thread, which is neither the poller's nor a thread of a server. Messages and new connections
/// are handled on the poller's thread, requests on threads of the servers. follow() and leave() wait for a
/// running handler of the poller and for the threads of the HTTP connections of the device.
class ServedDevice
{
public:
    /// The objects that all devices share; they must outlive the devices.
    struct Parts
    {
        sdk::demo::DemoSite &site;
        const SiteOptions &options;
        Poller &poller;
        HttpServer &http;
        RtspContext &rtsp;
    };

    /// The device is not on the network before the first follow(). `mac` is the device's MAC in the site.
    /// `interface` has that MAC and must not be null.
    ServedDevice(const Parts &parts, QString mac, std::unique_ptr<DeviceInterface> interface);

    /// Removes the device from the network without a Bye message. Ends its connections and waits for their
    /// threads.
    ~ServedDevice();
    ServedDevice(const ServedDevice &) = delete;
    ServedDevice &operator=(const ServedDevice &) = delete;

    [[nodiscard]] const QString &mac() const { return m_mac; }

    /// Updates the network to the state of the device: it appears with a Hello message when it is online. To
    /// be called repeatedly. `now` is the time on the site's clock, in ms since 1970. A device that goes
    /// offline leaves at once, as by leave(). Changed addresses and ports are used after 500 ms, so that the
    /// response to the request that set them is sent from the old address; all connections end then. A
    /// failure is logged, and the next change is the next attempt.
    void follow(const sdk::demo::SceneDevice &device, std::int64_t now);

    /// Removes the device from the network and ends its connections, after a Bye message if its DiscoveryPort
    /// can send one. A further follow() brings it back.
    void leave();

private:
    /// The state that determines the network of the device.
    struct Shape
    {
        DeviceNetwork network;
        int httpPort = 0;
        int httpsPort = 0;       // 0 for none
        bool isListening = true; ///< at its TCP ports; false with Fault::RefusesConnections
        bool operator==(const Shape &) const = default;
    };
    [[nodiscard]] static Shape shapeOf(const sdk::demo::SceneDevice &device);

    void appear(const Shape &shape);
    void listenEncrypted(int port);
    void listen(FileDescriptor &listener, int port, std::function<void(int listener)> accept);
    void stopListening(FileDescriptor &listener);
    void disappear();

    const Parts m_parts;
    const QString m_mac;
    const std::unique_ptr<DeviceInterface> m_interface;
    std::optional<Shape> m_shape;   // present state on the network; nothing while the device is offline
    Shape m_target;                 // state of the device
    std::int64_t m_targetSince = 0; // time of the last change of m_target, as `now`
    std::unique_ptr<DiscoveryPort> m_discovery;
    RtspPort m_rtsp;
    FileDescriptor m_httpListener;
    FileDescriptor m_httpsListener;
    std::shared_ptr<const sdk::demo::DeviceKey> m_key; // of HTTPS; see SiteOptions::newKeys
    FileDescriptor m_rtspListener;
};

} // namespace site
