// HTTP authentication with the accounts of a device: Digest (MD5, qop "auth") and Basic.
#pragma once

#include "sdk/demo/http/httpmessage.h"
#include "sdk/demo/scene/scene.h"

#include <QByteArray>

#include <chrono>
#include <cstdint>

namespace sdk::demo {

/// The result of checking the credentials of a request.
struct HttpCredentials
{
    bool areValid = false; ///< the request may be run
    bool areStale = false; ///< not valid, but only because the nonce has expired
    QString kind;          ///< scheme of the request: "basic", "digest"; "none" for another scheme or none
    QString user;          ///< as in the request, also if unknown; empty without credentials
};

/// Stores no nonces: a nonce of a Digest challenge contains the time of its creation, and a hash of the time,
/// the device and a secret of this object. A nonce may be used several times. Thread-safe.
class HttpAuthentication
{
public:
    /// The lifetime of a nonce, on the site's clock.
    static constexpr std::chrono::milliseconds nonceLife = std::chrono::minutes(5);

    /// Generates the secret of the nonces: a nonce of another object is not accepted.
    HttpAuthentication();

    /// Checks the header "Authorization" of `request`. Only the scheme of the device is accepted. A device
    /// that is uninitialised or has Fault::WrongPassword accepts no credentials. `now` is the time on the
    /// site's clock, in ms since 1970.
    [[nodiscard]] HttpCredentials check(const SceneDevice &device, const HttpRequest &request,
                                        std::int64_t now) const;

    /// The complete line of the header "WWW-Authenticate" with the challenge of the device's scheme, without
    /// a line end. With `isStale` (HttpCredentials::areStale) the line reports that the nonce of the request
    /// has expired. `now` as in check().
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
