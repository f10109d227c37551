#include "site/serveddevice.h"

#include "sdk/demo/device/deviceresponses.h"
#include "site/deviceidentity.h"
#include "site/http/httpserver.h"
#include "site/logging.h"
#include "site/network/poller.h"
#include "site/services/devicenetwork.h"

namespace site {

namespace {

/// The time in ms until a device uses its new address.
constexpr std::int64_t moment = 500;

} // namespace

ServedDevice::ServedDevice(const Parts &parts, QString mac, std::unique_ptr<DeviceInterface> interface)
    : m_parts(parts), m_mac(std::move(mac)), m_interface(std::move(interface)),
      m_rtsp(parts.rtsp, m_mac, m_interface->space())
{
}

ServedDevice::~ServedDevice()
{
    disappear();
}

ServedDevice::Shape ServedDevice::shapeOf(const sdk::demo::SceneDevice &device)
{
    const bool isUnset = device.address == QLatin1String("0.0.0.0");
    return {{isUnset ? QString() : device.address, prefixLengthOf(device.mask), device.ipv6,
             device.ipv6PrefixLength},
            servicePortOf(device),
            httpsPortOf(device),
            !device.hasFault(sdk::demo::Fault::RefusesConnections)};
}

void ServedDevice::follow(const sdk::demo::SceneDevice &device, std::int64_t now)
{
    const Shape shape = shapeOf(device);
    if (shape != m_target) {
        m_target = shape;
        m_targetSince = now;
    }
    if (!device.isListening(now)) {
        if (m_shape)
            leave();
    } else if (!m_shape) {
        appear(shape);
    } else if (*m_shape != shape && now - m_targetSince >= moment) {
        disappear();
        appear(shape);
    }
}

void ServedDevice::leave()
{
    if (m_discovery)
        m_discovery->sendBye();
    disappear();
}

void ServedDevice::appear(const Shape &shape)
{
    m_shape = shape; // also on failure: the next change is the next attempt
    QString error;
    if (!m_interface->bringUp(shape.network, &error)) {
        qCWarning(siteLog, "%ls", qUtf16Printable(error));
        return;
    }
    if (shape.isListening) {
        listen(m_httpListener, shape.httpPort,
               [this](int listener) { m_parts.http.accept(listener, m_mac); });
        if (shape.httpsPort != 0)
            listenEncrypted(shape.httpsPort);
        listen(m_rtspListener, rtspPort, [this](int listener) { m_rtsp.accept(listener); });
    }
    m_discovery =
        std::make_unique<DiscoveryPort>(m_parts.site, m_parts.poller, m_parts.options, m_mac, *m_interface);
    if (m_discovery->isOpen())
        m_discovery->sendHello();
    else
        qCWarning(siteLog, "%ls does not respond to searches: port %d is in use", qUtf16Printable(m_mac),
                  DiscoveryPort::port);
}

void ServedDevice::listenEncrypted(int port)
{
    if (!m_key || m_parts.options.newKeys)
        m_key = sdk::demo::DeviceKey::make(m_mac.toStdString());
    if (m_key)
        listen(m_httpsListener, port,
               [this, key = m_key](int listener) { m_parts.http.accept(listener, m_mac, key); });
    else
        qCWarning(siteLog, "%ls has no key for HTTPS", qUtf16Printable(m_mac));
}

void ServedDevice::listen(FileDescriptor &listener, int port, std::function<void(int listener)> accept)
{
    listener = m_interface->openListener(port);
    const int number = listener.number();
    if (listener.isOpen())
        m_parts.poller.watch(number, [number, accept = std::move(accept)] { accept(number); });
    else
        qCWarning(siteLog, "%ls cannot listen at port %d", qUtf16Printable(m_mac), port);
}

void ServedDevice::stopListening(FileDescriptor &listener)
{
    if (listener.isOpen())
        m_parts.poller.remove(listener.number());
    listener.reset();
}

void ServedDevice::disappear()
{
    if (!m_shape)
        return;
    m_shape.reset();
    m_discovery.reset();
    stopListening(m_httpListener);
    stopListening(m_httpsListener);
    stopListening(m_rtspListener);
    m_interface->bringDown();
    m_parts.http.closeAllOf(m_mac);
    m_rtsp.closeClients();
}

} // namespace site
