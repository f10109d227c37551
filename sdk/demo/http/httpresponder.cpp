#include "sdk/demo/http/httpresponder.h"

#include "sdk/clock.h"
#include "sdk/demo/http/httpcommands.h"
#include "sdk/demo/site/sitestate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

/// What the proxy does not do; nothing for a request that it passes on.
std::optional<HttpReply> proxyRefusal(const HttpTarget &target)
{
    if (target.scheme == u"https")
        return HttpReply::line(HttpStatus::NotImplemented,
                               u"HTTPS goes through a tunnel: CONNECT ADDRESS:443"_s);
    if (!target.isGood || (!target.scheme.isEmpty() && target.scheme != u"http"))
        return HttpReply::line(HttpStatus::BadRequest, u"This is no address that the proxy understands"_s);
    if (target.scheme.isEmpty())
        return HttpReply::line(HttpStatus::BadRequest,
                               u"This is the proxy to the devices of the simulated site: "
                               "ask it for http://ADDRESS/cgi-bin/help"_s);
    return std::nullopt;
}

/// Lays the device's faults over an answer to somebody who has been let in.
HttpReply withFaults(const SceneDevice &device, HttpReply reply)
{
    constexpr char hugeLine[] =
        "A line of text that is repeated until the answer is as long as it shall be.\n";
    constexpr qint64 megabyte = qint64{1024} * 1024;
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpHuge)) {
        reply = HttpReply();
        reply.body = hugeLine;
        reply.length = fault->number * megabyte;
    }
    if (device.hasFault(Fault::HttpRedirects)) {
        reply = HttpReply::line(HttpStatus::Found, u"Elsewhere"_s);
        reply.fields.append("Location: /cgi-bin/elsewhere");
    }
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpLate))
        reply.lateness = std::chrono::milliseconds(fault->number);
    if (const std::optional<FaultSetting> fault = device.fault(Fault::HttpSlow))
        reply.slowness = std::chrono::seconds(fault->number);
    reply.isBroken = device.hasFault(Fault::HttpBroken);
    reply.hasNoHead = device.hasFault(Fault::HttpNoStatusLine);
    return reply;
}

} // namespace

Clock &HttpResponder::clock() const
{
    return m_site.clock();
}

bool HttpResponder::speaksHttp(int localPort) const
{
    if (localPort == proxy)
        return true;
    const std::optional<Tunnel> tunnel = m_site.tunnel(localPort);
    const std::optional<SceneDevice> device = tunnel ? m_site.device(tunnel->mac) : std::nullopt;
    return device && device->httpPort == tunnel->devicePort;
}

QString HttpResponder::reachedDevice(const QString &host, int port, DevicePort kind, HttpReply &reply) const
{
    const DeviceReach reached = reach(m_site, host, port, kind);
    switch (reached.kind) {
    case DeviceReach::Kind::Answers:
        break;
    case DeviceReach::Kind::Refuses:
        reply = HttpReply::line(HttpStatus::BadGateway,
                                u"Nothing listens at port %1 of %2"_s.arg(port).arg(host));
        break;
    case DeviceReach::Kind::Silent:
        reply.status = HttpStatus::None;
        break;
    }
    return reached.session.mac;
}

HttpReply HttpResponder::answer(const HttpRoute &route, const HttpRequest &request) const
{
    HttpTarget target = readHttpTarget(request.target);
    HttpCredentials credentials;
    HttpReply reply;
    QString mac;
    const bool isTunnel = !route.host.isEmpty();
    const bool isProxy = route.localPort == proxy && !isTunnel;
    if (const std::optional<HttpReply> refusal = isProxy ? proxyRefusal(target) : std::nullopt)
        reply = *refusal;
    else if (!target.isGood)
        reply = HttpReply::line(HttpStatus::BadRequest, u"This is no address"_s);
    else if (isTunnel)
        mac = reachedDevice(target.host = route.host, route.port, DevicePort::SecureWeb, reply);
    else if (isProxy)
        mac = reachedDevice(target.host, target.port, DevicePort::Web, reply);
    else
        mac = reachedDevice(u"127.0.0.1"_s, route.localPort, DevicePort::Web, reply);
    if (!mac.isEmpty())
        reply = answerOfDevice(mac, request, target, credentials);
    record(mac, request, target, credentials, reply.status);
    return reply;
}

HttpTunnel HttpResponder::openTunnel(const HttpRequest &request)
{
    HttpTarget target = readHttpTarget("https://" + request.target);
    HttpTunnel tunnel;
    QString mac;
    if (target.isGood && target.path == "/" && target.query.isEmpty()) {
        mac = reachedDevice(target.host, target.port, DevicePort::SecureWeb, tunnel.refusal);
        tunnel.route = {.localPort = proxy, .host = target.host, .port = target.port};
    } else {
        tunnel.refusal =
            HttpReply::line(HttpStatus::BadRequest, u"This is no address that the proxy understands"_s);
    }
    if (!mac.isEmpty()) {
        tunnel.key = keyOf(mac);
        if (!tunnel.key)
            tunnel.refusal = HttpReply::line(HttpStatus::BadGateway, u"The device has no key for HTTPS"_s);
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

HttpReply HttpResponder::answerOfDevice(const QString &mac, const HttpRequest &request,
                                        const HttpTarget &target, HttpCredentials &credentials) const
{
    const std::optional<SceneDevice> device = m_site.device(mac);
    if (!device)
        return HttpReply::line(HttpStatus::BadGateway, u"The device has left the site"_s);
    const std::int64_t now = m_site.clock().now();
    credentials = m_authentication.check(*device, request, now);
    if (!credentials.areRight) {
        HttpReply reply = HttpReply::line(HttpStatus::Unauthorized, u"A user and a password are needed"_s);
        reply.fields.append(m_authentication.challenge(*device, credentials.areStale, now));
        return reply;
    }
    if (request.method != "GET" && request.method != "POST") {
        HttpReply reply = HttpReply::line(HttpStatus::MethodNotAllowed, u"Only GET and POST are known"_s);
        reply.fields.append("Allow: GET, POST");
        return reply;
    }
    return withFaults(*device, runHttpCommand(m_site, mac, target));
}

} // namespace sdk::demo
