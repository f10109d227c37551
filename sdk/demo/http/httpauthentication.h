// HTTP authentication with the accounts of a device: Digest (MD5, qop "auth") and Basic.
#pragma once

#include "sdk/demo/http/httpmessage.h"
#include "sdk/demo/scene/scene.h"

#include <QByteArray>

#include <chrono>
#include <cstdint>

namespace sdk::demo {

struct HttpCredentials
{
    bool areValid = false;
    bool areStale = false; ///< valid except for an expired nonce
    QString kind;          ///< "none", "basic" or "digest": the scheme of the request
    QString user;          ///< as in the request
};

/// Stateless: a nonce contains the time of its creation and its device. Thread-safe.
class HttpAuthentication
{
public:
    /// The lifetime of a nonce.
    static constexpr std::chrono::milliseconds nonceLife = std::chrono::minutes(5);

    HttpAuthentication();

    /// Checks the header "Authorization" of `request`. An uninitialised device accepts no credentials. `now`
    /// is the time on the site's clock, in ms since 1970.
    [[nodiscard]] HttpCredentials check(const SceneDevice &device, const HttpRequest &request,
                                        std::int64_t now) const;

    /// The complete line of the header "WWW-Authenticate" with the challenge of the device's scheme, without
    /// a line end. With `isStale` it reports that the nonce of the last request has expired.
    [[nodiscard]] QByteArray challenge(const SceneDevice &device, bool isStale, std::int64_t now) const;

private:
    enum class NonceState
    {
        Foreign,
        Old,
        Good,
    };
    [[nodiscard]] QByteArray nonce(const SceneDevice &device, std::int64_t time) const;
    [[nodiscard]] NonceState nonceState(const SceneDevice &device, const QByteArray &nonce,
                                        std::int64_t now) const;
    void checkDigest(const SceneDevice &device, const HttpRequest &request, const QByteArray &parameters,
                     std::int64_t now, HttpCredentials &credentials) const;

    const QByteArray m_secret;
};

} // namespace sdk::demo
