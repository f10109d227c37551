// Who asks: Digest (MD5, quality "auth") and Basic authentication against the accounts of a device.
#pragma once

#include "sdk/demo/http/httpmessage.h"
#include "sdk/demo/scene/scene.h"

#include <QByteArray>

#include <chrono>
#include <cstdint>

namespace sdk::demo {

struct HttpCredentials
{
    bool areRight = false;
    bool areStale = false; ///< right, but for a nonce that is too old
    QString kind;          ///< "none", "basic" or "digest": what the request came with
    QString user;          ///< as the request names it
};

/// Keeps nothing of what it checks: a nonce says itself when it was made, and for which device. Thread-safe.
class HttpAuthentication
{
public:
    /// How long a nonce is good for.
    static constexpr std::chrono::milliseconds nonceLife = std::chrono::minutes(5);

    HttpAuthentication();

    /// Checks the header "Authorization" of `request`. A device that waits for its first password has no
    /// right one. `now` is the time on the site's clock.
    [[nodiscard]] HttpCredentials check(const SceneDevice &device, const HttpRequest &request,
                                        std::int64_t now) const;

    /// The header that asks for credentials of the device's kind.
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
