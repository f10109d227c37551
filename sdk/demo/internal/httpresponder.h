// What the web service of the site answers to a request.
#pragma once

#include "sdk/demo/internal/httpauthentication.h"
#include "sdk/demo/internal/httpmessage.h"

namespace sdk {
class Clock;
}

namespace sdk::demo {

class DemoSite;

/// Thread-safe.
class HttpResponder
{
public:
    /// How long a request is held that nobody answers, on the site's clock; longer than clients wait.
    static constexpr std::chrono::milliseconds silence = std::chrono::seconds(10);

    /// The local port of the proxy in the place of one of the port agent.
    static constexpr int proxy = 0;

    /// `site` must outlive the responder.
    explicit HttpResponder(DemoSite &site) : m_site(site) {}

    [[nodiscard]] Clock &clock() const;

    /// Whether what listens at `localPort` speaks HTTP: the proxy, and a tunnel to a device's web port.
    [[nodiscard]] bool speaksHttp(int localPort) const;

    /// The answer to a request that came to `localPort`, and the request in the site's record.
    /// HttpStatus::None for one that gets no answer.
    [[nodiscard]] HttpReply answer(int localPort, const HttpRequest &request) const;

private:
    [[nodiscard]] HttpReply answerOfDevice(const QString &mac, const HttpRequest &request,
                                           const HttpTarget &target, HttpCredentials &credentials) const;

    DemoSite &m_site;
    const HttpAuthentication m_authentication;
};

} // namespace sdk::demo
