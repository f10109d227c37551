// Digest authentication of HTTP and RTSP.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <cstdint>
#include <optional>

namespace site {

/// The response of a client to a challenge.
struct DigestResponse
{
    QString user;
    QByteArray realm;
    QByteArray nonce;
    QByteArray uri;
    QByteArray response;  ///< lower case
    QByteArray algorithm; ///< lower case; empty stands for MD5
    QByteArray quality;   ///< qop: "auth", or empty
    QByteArray clientNonce;
    QByteArray nonceCount;
};

/// Reads the header "Authorization". Nothing for another authentication scheme.
[[nodiscard]] std::optional<DigestResponse> readDigestResponse(const QByteArray &header);

/// True if the response was made with that password for a request of that method.
[[nodiscard]] bool provesPassword(const DigestResponse &response, const QString &password,
                                  const QByteArray &method);

/// Nonces that contain their time and their device. Thread-safe.
class DigestNonces
{
public:
    enum class State
    {
        Foreign, ///< not made for this device by this object
        Old,     ///< older than 5 minutes
        Good,
    };

    DigestNonces();

    /// A nonce for the device. `now` is in ms since 1970, also for check().
    [[nodiscard]] QByteArray make(const QString &mac, std::int64_t now) const;
    [[nodiscard]] State check(const QByteArray &nonce, const QString &mac, std::int64_t now) const;

private:
    const QByteArray m_secret;
};

enum class DigestAlgorithm
{
    Md5,
    Sha256,
};

/// The value of a header "WWW-Authenticate".
[[nodiscard]] QByteArray digestChallenge(const QByteArray &realm, const QByteArray &nonce,
                                         DigestAlgorithm algorithm, bool isStale);

} // namespace site
