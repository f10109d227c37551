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

/// Follows its device: changes of the device change the interface and the sockets. Used by one thread.
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

    ServedDevice(const Parts &parts, QString mac, std::unique_ptr<DeviceInterface> interface);
    ~ServedDevice();
    ServedDevice(const ServedDevice &) = delete;
    ServedDevice &operator=(const ServedDevice &) = delete;

    [[nodiscard]] const QString &mac() const { return m_mac; }

    /// Updates the network to the state of the device. `now` is the time on the site's clock, in ms since
    /// 1970. A new address is used after a delay, so that the response to the request that set it is sent
    /// from the old one.
    void follow(const sdk::demo::SceneDevice &device, std::int64_t now);

    /// Removes the device from the network, after a Bye message if possible.
    void leave();

private:
    /// The state that determines the network of the device.
    struct Shape
    {
        DeviceNetwork network;
        int httpPort = 0;
        int httpsPort = 0;       // 0 for none
        bool isListening = true; ///< at its ports
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
    std::optional<Shape> m_shape; // present state on the network; nothing while the device is offline
    Shape m_target;               // state of the device
    std::int64_t m_targetSince = 0;
    std::unique_ptr<DiscoveryPort> m_discovery;
    RtspPort m_rtsp;
    FileDescriptor m_httpListener;
    FileDescriptor m_httpsListener;
    std::shared_ptr<const sdk::demo::DeviceKey> m_key; // created at the first start with HTTPS
    FileDescriptor m_rtspListener;
};

} // namespace site
