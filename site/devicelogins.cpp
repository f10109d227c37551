#include "site/devicelogins.h"

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

QByteArray realmOf(const SceneDevice &device)
{
    return "Login to " + device.serial.toLatin1();
}

QString reasonOf(sdk::NetError error)
{
    switch (error) {
    case sdk::NetError::AccountLocked:
        return u"The account is locked"_s;
    case sdk::NetError::AccountLoggedIn:
    case sdk::NetError::AccountLoggedInSecure:
        return u"The account has a session already"_s;
    case sdk::NetError::NotSupported:
        return u"The device is not initialised"_s;
    default:
        return u"The user or the password is wrong"_s;
    }
}

} // namespace

LoginOutcome DeviceLogins::check(const SceneDevice &device, const UserNameToken &token, std::int64_t utc)
{
    return outcome(device, token.user,
                   [&](const QString &password) { return provesPassword(token, password, utc); });
}

LoginOutcome DeviceLogins::check(const SceneDevice &device, const DeviceManner &manner,
                                 const QByteArray &authorization, const QByteArray &method, std::int64_t now)
{
    const std::optional<DigestResponse> response = readDigestResponse(authorization);
    if (!response)
        return {};
    const bool isMd5 = response->algorithm.isEmpty() || response->algorithm == "md5";
    const bool isSha256 = response->algorithm == "sha-256";
    const bool isOffered = (isSha256 && (manner.offersSha256 || device.hasFault(Fault::Sha256Last))) ||
                           (isMd5 && manner.offersMd5);
    const DigestNonces::State nonce = m_nonces.check(response->nonce, device.mac, now);
    if (nonce != DigestNonces::State::Good || !isOffered) {
        // No password was tried: the client gets another challenge.
        LoginOutcome again;
        again.isStale = nonce == DigestNonces::State::Old;
        return again;
    }
    return outcome(device, response->user,
                   [&](const QString &password) { return provesPassword(*response, password, method); });
}

QByteArrayList DeviceLogins::challenges(const SceneDevice &device, const DeviceManner &manner, bool isStale,
                                        std::int64_t now) const
{
    QByteArrayList challenges;
    const QByteArray nonce = m_nonces.make(device.mac, now);
    const bool hasSha256Last = device.hasFault(Fault::Sha256Last);
    if (manner.offersSha256 && !hasSha256Last)
        challenges.append(digestChallenge(realmOf(device), nonce, DigestAlgorithm::Sha256, isStale));
    if (manner.offersMd5)
        challenges.append(digestChallenge(realmOf(device), nonce, DigestAlgorithm::Md5, isStale));
    if (hasSha256Last)
        challenges.append(digestChallenge(realmOf(device), nonce, DigestAlgorithm::Sha256, isStale));
    return challenges;
}

LoginOutcome DeviceLogins::outcome(const SceneDevice &device, const QString &user,
                                   const std::function<bool(const QString &password)> &isProved)
{
    const SceneAccount *account = accountOf(device, user);
    const bool isCorrect = account && isProved(account->password);
    const QString password = isCorrect ? account->password : (account ? account->password : QString()) + u'?';
    const sdk::NetError error = m_guard.check(device, user, password, LoginKind::Secure);
    LoginOutcome outcome;
    outcome.user = user;
    if (error == sdk::NetError::None)
        outcome.level = userLevelOf(device, user);
    else
        outcome.reason = reasonOf(error);
    return outcome;
}

} // namespace site
