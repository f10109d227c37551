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

struct LoginOutcome
{
    UserLevel level = UserLevel::Anonymous; ///< of the client; Anonymous if the login is missing or refused
    QString user;
    bool wasTried = false; ///< a user name and a password were checked
    bool isStale = false;  ///< the nonce has expired: no password was checked
    QString reason = QStringLiteral("A user and a password are required"); ///< why the request is refused
};

/// The logins of all protocols to the devices of a site, with common counters of wrong passwords.
/// Thread-safe.
class DeviceLogins
{
public:
    /// Checks a token. `utc` is the time of the device, in ms since 1970.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const UserNameToken &token,
                                     std::int64_t utc);

    /// Checks the value of the header "Authorization" of a request of that HTTP or RTSP method. Digest only:
    /// for another scheme, or an algorithm that the device does not offer, no password is checked. `now` is
    /// the time on the site's clock, in ms since 1970.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                     const QByteArray &authorization, const QByteArray &method,
                                     std::int64_t now);

    /// The values of the headers "WWW-Authenticate" of a challenge: one for each digest algorithm that the
    /// device offers.
    [[nodiscard]] QByteArrayList challenges(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                            bool isStale, std::int64_t now) const;

private:
    [[nodiscard]] LoginOutcome outcome(const sdk::demo::SceneDevice &device, const QString &user,
                                       const std::function<bool(const QString &password)> &isProved);

    sdk::demo::LoginGuard m_guard;
    const DigestNonces m_nonces;
};

} // namespace site
