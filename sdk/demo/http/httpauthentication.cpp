#include "sdk/demo/http/httpauthentication.h"

#include "sdk/demo/device/devicelogin.h"

#include <QCryptographicHash>
#include <QHash>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr qsizetype timeDigits = 16;

QByteArray md5(const QByteArrayList &parts)
{
    return QCryptographicHash::hash(parts.join(':'), QCryptographicHash::Md5).toHex();
}

/// The name of the device in a browser's dialog.
QByteArray realmOf(const SceneDevice &device)
{
    return "device " + device.mac.toLatin1();
}

/// The account; null for one that is refused regardless of its password.
const SceneAccount *usableAccount(const SceneDevice &device, const QString &user)
{
    return device.isUninitialised() || device.hasFault(Fault::WrongPassword) ? nullptr
                                                                             : accountOf(device, user);
}

/// A value up to the next comma, or between quotation marks with its escapes removed. Moves `position` behind
/// the value.
QByteArray readValue(const QByteArray &text, qsizetype &position)
{
    QByteArray value;
    if (position >= text.size() || text.at(position) != '"') {
        const qsizetype comma = text.indexOf(',', position);
        const qsizetype end = comma < 0 ? text.size() : comma;
        value = text.mid(position, end - position).trimmed();
        position = end;
        return value;
    }
    for (++position; position < text.size() && text.at(position) != '"'; ++position) {
        if (text.at(position) == '\\' && position + 1 < text.size())
            ++position;
        value.append(text.at(position));
    }
    const qsizetype comma = text.indexOf(',', position);
    position = comma < 0 ? text.size() : comma;
    return value;
}

/// `a="b", c=d` by name. The first value of a name counts.
QHash<QByteArray, QByteArray> readParameters(const QByteArray &text)
{
    QHash<QByteArray, QByteArray> parameters;
    qsizetype position = 0;
    while (position < text.size()) {
        const qsizetype equals = text.indexOf('=', position);
        if (equals < 0)
            break;
        const QByteArray name = text.mid(position, equals - position).trimmed().toLower();
        position = equals + 1;
        while (position < text.size() && text.at(position) == ' ')
            ++position;
        const QByteArray value = readValue(text, position);
        if (!parameters.contains(name))
            parameters.insert(name, value);
        ++position; // the comma
    }
    return parameters;
}

/// Whether `uri` is the target of `request`. Old browsers send only its path.
bool isUriOf(const HttpRequest &request, const QByteArray &uri)
{
    const HttpTarget target = readHttpTarget(request.target);
    const QByteArray complete = target.query.isEmpty() && !request.target.contains('?')
                                    ? target.path
                                    : target.path + '?' + target.query;
    return uri == complete || uri == target.path || uri == request.target;
}

QByteArray randomSecret()
{
    std::array<quint32, 4> words = {};
    QRandomGenerator::system()->fillRange(words.data(), static_cast<qsizetype>(words.size()));
    return {reinterpret_cast<const char *>(words.data()), sizeof(words)};
}

void checkBasic(const SceneDevice &device, const QByteArray &encoded, HttpCredentials &credentials)
{
    credentials.kind = u"basic"_s;
    const auto result =
        QByteArray::fromBase64Encoding(encoded.trimmed(), QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray decoded = result ? *result : QByteArray();
    const qsizetype colon = decoded.indexOf(':');
    if (colon < 0)
        return;
    credentials.user = QString::fromUtf8(decoded.left(colon));
    const SceneAccount *account = usableAccount(device, credentials.user);
    credentials.areValid = device.httpAuthentication == HttpAuthenticationKind::Basic && account &&
                           account->password.toUtf8() == decoded.mid(colon + 1);
}

} // namespace

HttpAuthentication::HttpAuthentication() : m_secret(randomSecret()) {}

QByteArray HttpAuthentication::nonce(const SceneDevice &device, std::int64_t time) const
{
    const QByteArray digits =
        QByteArray::number(static_cast<qint64>(time), 16).rightJustified(timeDigits, '0');
    return digits + md5({digits, device.mac.toLatin1(), m_secret});
}

HttpAuthentication::NonceState HttpAuthentication::nonceState(const SceneDevice &device,
                                                              const QByteArray &nonce, std::int64_t now) const
{
    const qint64 time = nonce.left(timeDigits).toLongLong(nullptr, 16);
    if (nonce != this->nonce(device, time))
        return NonceState::Foreign;
    const bool isValid = now >= time && now - time <= nonceLife.count();
    return isValid ? NonceState::Good : NonceState::Old;
}

void HttpAuthentication::checkDigest(const SceneDevice &device, const HttpRequest &request,
                                     const QByteArray &parameters, std::int64_t now,
                                     HttpCredentials &credentials) const
{
    credentials.kind = u"digest"_s;
    const QHash<QByteArray, QByteArray> given = readParameters(parameters);
    credentials.user = QString::fromUtf8(given.value("username"));
    const SceneAccount *account = usableAccount(device, credentials.user);
    const QByteArray algorithm = given.value("algorithm", "MD5").toUpper();
    const NonceState state = nonceState(device, given.value("nonce"), now);
    if (!account || device.httpAuthentication != HttpAuthenticationKind::Digest || algorithm != "MD5" ||
        given.value("qop") != "auth" || given.value("realm") != realmOf(device) ||
        !isUriOf(request, given.value("uri")) || state == NonceState::Foreign)
        return;
    const QByteArray who = md5({given.value("username"), realmOf(device), account->password.toUtf8()});
    const QByteArray what = md5({request.method, given.value("uri")});
    const QByteArray expected =
        md5({who, given.value("nonce"), given.value("nc"), given.value("cnonce"), given.value("qop"), what});
    const bool isCorrect = given.value("response").toLower() == expected;
    credentials.areValid = isCorrect && state == NonceState::Good;
    credentials.areStale = isCorrect && state == NonceState::Old;
}

HttpCredentials HttpAuthentication::check(const SceneDevice &device, const HttpRequest &request,
                                          std::int64_t now) const
{
    HttpCredentials credentials;
    credentials.kind = u"none"_s;
    const QByteArray header = request.field("authorization");
    const qsizetype space = header.indexOf(' ');
    const QByteArray scheme = header.left(std::max<qsizetype>(space, 0)).toLower();
    if (scheme == "basic")
        checkBasic(device, header.mid(space + 1), credentials);
    else if (scheme == "digest")
        checkDigest(device, request, header.mid(space + 1), now, credentials);
    return credentials;
}

QByteArray HttpAuthentication::challenge(const SceneDevice &device, bool isStale, std::int64_t now) const
{
    if (device.httpAuthentication == HttpAuthenticationKind::Basic)
        return "WWW-Authenticate: Basic realm=\"" + realmOf(device) + "\", charset=\"UTF-8\"";
    return "WWW-Authenticate: Digest realm=\"" + realmOf(device) + "\", nonce=\"" + nonce(device, now) +
           "\", qop=\"auth\", algorithm=MD5" + (isStale ? ", stale=true" : "");
}

} // namespace sdk::demo
