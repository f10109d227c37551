// Digest authentication of HTTP and RTSP.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <cstdint>
#include <optional>

namespace site {

/// The response of a client to a challenge: the parameters of its header. Missing parameters are empty.
struct DigestResponse
{
    QString user;
    QByteArray realm;
    QByteArray nonce;
    QByteArray uri;
    QByteArray response;  ///< lower case
    QByteArray algorithm; ///< lower case; empty stands for MD5
    QByteArray quality;   ///< qop; any value but "auth" counts as none
    QByteArray clientNonce;
    QByteArray nonceCount;
};

/// Reads the value of the header "Authorization". Nothing for another authentication scheme and for an empty
/// value.
[[nodiscard]] std::optional<DigestResponse> readDigestResponse(const QByteArray &header);

/// True if the response was made with that password for a request of that method ("GET"). False for another
/// algorithm than MD5 and SHA-256. The nonce, the realm and the URI are not checked.
[[nodiscard]] bool provesPassword(const DigestResponse &response, const QString &password,
                                  const QByteArray &method);

/// Makes and checks nonces, which are not stored: a nonce contains its time, and a hash of the time, its
/// device and a secret of this object. A nonce may be used several times. Thread-safe.
class DigestNonces
{
public:
    enum class State
    {
        Foreign, ///< not made for this device by this object
        Old,     ///< made for this device by this object, and older than 5 minutes or of a later time
        Good,
    };

    /// Generates the secret: nonces of another object are Foreign.
    DigestNonces();

    /// A nonce for the device. `now` is the time on the site's clock, in ms since 1970.
    [[nodiscard]] QByteArray make(const QString &mac, std::int64_t now) const;
    /// The state of any nonce at the time `now`.
    [[nodiscard]] State check(const QByteArray &nonce, const QString &mac, std::int64_t now) const;

private:
    const QByteArray m_secret;
};

/// The hash algorithms of a challenge.
enum class DigestAlgorithm
{
    Md5,
    Sha256,
};

/// The value of a header "WWW-Authenticate" (qop "auth"). `realm` has no quotation marks. `isStale` reports
/// that the nonce of the request has expired: the client may repeat the request with this nonce and the same
/// password.
[[nodiscard]] QByteArray digestChallenge(const QByteArray &realm, const QByteArray &nonce,
                                         DigestAlgorithm algorithm, bool isStale);

} // namespace site
