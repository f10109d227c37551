#include "site/http/digest.h"

#include <QCryptographicHash>
#include <QMap>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>

#include <array>

namespace site {

namespace {

/// Reads a list of name=value and name="value".
QMap<QByteArray, QByteArray> readParameters(const QByteArray &text)
{
    QMap<QByteArray, QByteArray> parameters;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype equals = text.indexOf('=', position);
        if (equals < 0)
            break;
        const QByteArray name = text.mid(position, equals - position).trimmed().toLower();
        QByteArray value;
        position = equals + 1;
        if (position < text.size() && text.at(position) == '"') {
            for (++position; position < text.size() && text.at(position) != '"'; ++position) {
                if (text.at(position) == '\\' && position + 1 < text.size())
                    ++position;
                value += text.at(position);
            }
            const qsizetype comma = text.indexOf(',', position);
            position = comma < 0 ? text.size() : comma + 1;
        } else {
            const qsizetype comma = text.indexOf(',', position);
            const qsizetype end = comma < 0 ? text.size() : comma;
            value = text.mid(position, end - position).trimmed();
            position = end + 1;
        }
        parameters.insert(name, value);
    }
    return parameters;
}

QByteArray hexHash(const QByteArray &text, QCryptographicHash::Algorithm algorithm)
{
    return QCryptographicHash::hash(text, algorithm).toHex();
}

} // namespace

std::optional<DigestResponse> readDigestResponse(const QByteArray &header)
{
    constexpr QByteArrayView kind = "digest ";
    if (!header.left(kind.size()).toLower().startsWith(kind))
        return std::nullopt;
    const QMap<QByteArray, QByteArray> parameters = readParameters(header.mid(kind.size()));
    DigestResponse response;
    response.user = QString::fromUtf8(parameters.value("username"));
    response.realm = parameters.value("realm");
    response.nonce = parameters.value("nonce");
    response.uri = parameters.value("uri");
    response.response = parameters.value("response").toLower();
    response.algorithm = parameters.value("algorithm").toLower();
    response.quality = parameters.value("qop");
    response.clientNonce = parameters.value("cnonce");
    response.nonceCount = parameters.value("nc");
    return response;
}

bool provesPassword(const DigestResponse &response, const QString &password, const QByteArray &method)
{
    const bool isSha256 = response.algorithm == "sha-256";
    if (!isSha256 && !response.algorithm.isEmpty() && response.algorithm != "md5")
        return false;
    const auto algorithm = isSha256 ? QCryptographicHash::Sha256 : QCryptographicHash::Md5;
    const QByteArray who =
        hexHash(response.user.toUtf8() + ':' + response.realm + ':' + password.toUtf8(), algorithm);
    const QByteArray what = hexHash(method + ':' + response.uri, algorithm);
    QByteArray proof = who + ':' + response.nonce + ':';
    if (response.quality == "auth")
        proof += response.nonceCount + ':' + response.clientNonce + ":auth:";
    return hexHash(proof + what, algorithm) == response.response;
}

DigestNonces::DigestNonces()
    : m_secret([] {
          std::array<quint32, 8> random = {};
          QRandomGenerator::system()->fillRange(random.data(), random.size());
          return QByteArray(reinterpret_cast<const char *>(random.data()), sizeof(random));
      }())
{
}

QByteArray DigestNonces::make(const QString &mac, std::int64_t now) const
{
    const QByteArray time = QByteArray::number(static_cast<qlonglong>(now), 16);
    return time + '-' +
           QMessageAuthenticationCode::hash(time + mac.toLatin1(), m_secret, QCryptographicHash::Sha256)
               .toHex()
               .left(32);
}

DigestNonces::State DigestNonces::check(const QByteArray &nonce, const QString &mac, std::int64_t now) const
{
    constexpr std::int64_t life = std::int64_t{5} * 60 * 1000;
    const std::int64_t time = nonce.left(nonce.indexOf('-')).toLongLong(nullptr, 16);
    if (nonce != make(mac, time))
        return State::Foreign;
    return now >= time && now - time <= life ? State::Good : State::Old;
}

QByteArray digestChallenge(const QByteArray &realm, const QByteArray &nonce, DigestAlgorithm algorithm,
                           bool isStale)
{
    QByteArray challenge = "Digest realm=\"" + realm + "\", qop=\"auth\", nonce=\"" + nonce +
                           "\", algorithm=" + (algorithm == DigestAlgorithm::Sha256 ? "SHA-256" : "MD5");
    if (isStale)
        challenge += ", stale=true";
    return challenge;
}

} // namespace site
