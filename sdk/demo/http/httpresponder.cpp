#include "sdk/demo/http/httpresponder.h"

#include "sdk/clock.h"
#include "sdk/demo/http/httpcommands.h"
#include "sdk/demo/site/sitestate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

/// The refusal of an unsupported request to the proxy; nullopt for a request that it forwards.
std::optional<HttpResponse> proxyRefusal(const HttpTarget &target)
{
    if (target.scheme == u"https")
        return HttpResponse::line(HttpStatus::NotImplemented,
                                  u"HTTPS goes through a tunnel: CONNECT ADDRESS:443"_s);
    if (!target.isValid || (!target.scheme.isEmpty() && target.scheme != u"http"))
        return HttpResponse::line(HttpStatus::BadRequest, u"The proxy does not support this address"_s);
    if (target.scheme.isEmpty())
        return HttpResponse::line(HttpStatus::BadRequest,
                                  u"This is the proxy to the devices of the simulated site: "
                                  "request http://ADDRESS/cgi-bin/help"_s);
    return std::nullopt;
}

/// Applies the device's faults to the response to an authenticated client.
HttpResponse withFaults(const SceneDevice &device, HttpResponse response)
{
    constexpr char hugeLine[] = "A line of text that is repeated up to the length of the response.\n";
    constexpr qint64 megabyte = qint64{1024} * 1024;
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpHuge)) {
        response = HttpResponse();
        response.body = hugeLine;
        response.length = fault->number * megabyte;
    }
    if (device.hasFault(Fault::HttpRedirects)) {
        response = HttpResponse::line(HttpStatus::Found, u"Elsewhere"_s);
        response.fields.append("Location: /cgi-bin/elsewhere");
    }
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpLate))
        response.delay = std::chrono::milliseconds(fault->number);
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpSlow))
        response.slowDuration = std::chrono::seconds(fault->number);
    response.isBroken = device.hasFault(Fault::HttpBroken);
    response.hasNoHead = device.hasFault(Fault::HttpNoStatusLine);
    return response;
}

} // namespace

Clock &HttpResponder::clock() const
{
    return m_site.clock();
}

bool HttpResponder::isHttpPort(int localPort) const
{
    if (localPort == proxy)
        return true;
    const std::optional<Tunnel> tunnel = m_site.tunnel(localPort);
    const std::optional<SceneDevice> device = tunnel ? m_site.device(tunnel->mac) : std::nullopt;
    return device && device->httpPort == tunnel->devicePort;
}

QString HttpResponder::reachedDevice(const QString &host, int port, DevicePort kind,
                                     HttpResponse &response) const
{
    const DeviceReach reached = reach(m_site, host, port, kind);
    switch (reached.kind) {
    case DeviceReach::Kind::Responds:
        break;
    case DeviceReach::Kind::Refuses:
        response = HttpResponse::line(HttpStatus::BadGateway,
                                      u"Nothing listens at port %1 of %2"_s.arg(port).arg(host));
        break;
    case DeviceReach::Kind::Silent:
        response.status = HttpStatus::None;
        break;
    }
    return reached.session.mac;
}

HttpResponse HttpResponder::respond(const HttpRoute &route, const HttpRequest &request) const
{
    HttpTarget target = readHttpTarget(request.target);
    HttpCredentials credentials;
    HttpResponse response;
    QString mac;
    const bool isTunnel = !route.host.isEmpty();
    const bool isProxy = route.localPort == proxy && !isTunnel;
    if (const std::optional<HttpResponse> refusal = isProxy ? proxyRefusal(target) : std::nullopt)
        response = *refusal;
    else if (!target.isValid)
        response = HttpResponse::line(HttpStatus::BadRequest, u"The address is invalid"_s);
    else if (isTunnel)
        mac = reachedDevice(target.host = route.host, route.port, DevicePort::SecureWeb, response);
    else if (isProxy)
        mac = reachedDevice(target.host, target.port, DevicePort::Web, response);
    else
        mac = reachedDevice(u"127.0.0.1"_s, route.localPort, DevicePort::Web, response);
    if (!mac.isEmpty())
        response = responseOfDevice(mac, request, target, credentials);
    record(mac, request, target, credentials, response.status);
    return response;
}

HttpTunnel HttpResponder::openTunnel(const HttpRequest &request)
{
    HttpTarget target = readHttpTarget("https://" + request.target);
    HttpTunnel tunnel;
    QString mac;
    if (target.isValid && target.path == "/" && target.query.isEmpty()) {
        mac = reachedDevice(target.host, target.port, DevicePort::SecureWeb, tunnel.refusal);
        tunnel.route = {.localPort = proxy, .host = target.host, .port = target.port};
    } else {
        tunnel.refusal =
            HttpResponse::line(HttpStatus::BadRequest, u"The proxy does not support this address"_s);
    }
    if (!mac.isEmpty()) {
        tunnel.key = keyOf(mac);
        if (!tunnel.key)
            tunnel.refusal = HttpResponse::line(HttpStatus::BadGateway, u"The device has no key for HTTPS"_s);
    }
    record(mac, request, target, {}, tunnel.key ? HttpStatus::Ok : tunnel.refusal.status);
    return tunnel;
}

std::shared_ptr<const DeviceKey> HttpResponder::keyOf(const QString &mac)
{
    const std::lock_guard lock(m_keysMutex);
    std::shared_ptr<const DeviceKey> &key = m_keys[mac];
    if (!key)
        key = DeviceKey::make(mac.toStdString());
    return key;
}

void HttpResponder::record(const QString &mac, const HttpRequest &request, const HttpTarget &target,
                           const HttpCredentials &credentials, HttpStatus status) const
{
    m_site.requests().add({u"HTTP"_s,
                           mac,
                           {{u"method"_s, QString::fromLatin1(request.method)},
                            {u"host"_s, target.host},
                            {u"path"_s, QString::fromLatin1(target.path)},
                            {u"query"_s, QString::fromLatin1(target.query)},
                            {u"authentication"_s, credentials.kind},
                            {u"user"_s, credentials.user},
                            {u"status"_s, static_cast<int>(status)}},
                           m_site.clock().now()});
}

HttpResponse HttpResponder::responseOfDevice(const QString &mac, const HttpRequest &request,
                                             const HttpTarget &target, HttpCredentials &credentials) const
{
    const std::optional<SceneDevice> device = m_site.device(mac);
    if (!device)
        return HttpResponse::line(HttpStatus::BadGateway, u"The device was removed"_s);
    const std::int64_t now = m_site.clock().now();
    credentials = m_authentication.check(*device, request, now);
    if (!credentials.areValid) {
        HttpResponse response =
            HttpResponse::line(HttpStatus::Unauthorized, u"A user and a password are required"_s);
        response.fields.append(m_authentication.challenge(*device, credentials.areStale, now));
        return response;
    }
    if (request.method != "GET" && request.method != "POST") {
        HttpResponse response =
            HttpResponse::line(HttpStatus::MethodNotAllowed, u"Only GET and POST are supported"_s);
        response.fields.append("Allow: GET, POST");
        return response;
    }
    return withFaults(*device, runHttpCommand(m_site, mac, target));
}

} // namespace sdk::demo
