// The rights of clients at a device.
#pragma once

#include "sdk/demo/device/devicelogin.h"
#include "site/devicemanner.h"
#include "site/http/digest.h"
#include "site/services/userlevel.h"
#include "site/soap/soaprequest.h"

#include <QByteArray>

#include <functional>

namespace site {

/// The result of a check of a login. A login is successful if `level` is not Anonymous.
struct LoginOutcome
{
    UserLevel level = UserLevel::Anonymous; ///< of the client; Anonymous if the login is missing or refused
    QString user;         ///< the requested user, also if it is refused; empty if no password was checked
    bool isStale = false; ///< the nonce has expired: no password was checked
    QString reason = QStringLiteral("A user and a password are required"); ///< why `level` is Anonymous
};

/// Checks the logins of SOAP requests, by token or HTTP Digest, and of RTSP requests to the devices of a
/// site. Only a device with Fault::AccountLocked locks accounts: after FaultSetting::number wrong passwords
/// in a row, over these protocols together, the account is refused permanently, even with the right password.
/// Requests below /cgi-bin/ are checked by HttpAuthentication instead, and lock nothing. Thread-safe.
class DeviceLogins
{
public:
    /// Checks the user-name token of a SOAP message. A token without a digest, and one whose time is more
    /// than five minutes away from `utc`, counts as a wrong password. `utc` is the time of the device, in ms
    /// since 1970.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const UserNameToken &token,
                                     std::int64_t utc);

    /// Checks the value of the header "Authorization" (may be empty) of a request of that HTTP or RTSP
    /// method. No password is checked for another scheme than Digest, for an algorithm that challenges() does
    /// not offer, and for a nonce that is not valid: the client may try again with a new challenge. `now` is
    /// the time on the site's clock, in ms since 1970.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                     const QByteArray &authorization, const QByteArray &method,
                                     std::int64_t now);

    /// The values of the headers "WWW-Authenticate" of a challenge: one for each digest algorithm that the
    /// device offers, with the same nonce. These are the algorithms of `manner`, and SHA-256 also with
    /// Fault::Sha256Last. SHA-256 is first; with that fault it is last. `isStale` is LoginOutcome::isStale.
    /// `now` is as for check().
    [[nodiscard]] QByteArrayList challenges(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                            bool isStale, std::int64_t now) const;

private:
    [[nodiscard]] LoginOutcome outcome(const sdk::demo::SceneDevice &device, const QString &user,
                                       const std::function<bool(const QString &password)> &isProved);

    sdk::demo::LoginGuard m_guard;
    const DigestNonces m_nonces;
};

} // namespace site
