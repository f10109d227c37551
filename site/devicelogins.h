// Who may ask a device for what.
#pragma once

#include "sdk/demo/internal/devicelogin.h"
#include "site/devicemanner.h"
#include "site/http/digest.h"
#include "site/soap/soaprequest.h"

#include <QByteArray>

#include <functional>

namespace site {

enum class UserLevel
{
    Anonymous,
    User,
    Operator,
    Administrator,
};

struct LoginOutcome
{
    UserLevel level = UserLevel::Anonymous; ///< what the device takes the client for
    QString user;
    bool wasTried = false;                                               ///< the client has named a user
    bool isStale = false;                                                ///< by a nonce that is too old
    QString reason = QStringLiteral("A user and a password are needed"); ///< why nobody was let in
};

/// All ways to log in to the devices of a site; together they count the wrong passwords. Thread-safe.
class DeviceLogins
{
public:
    /// `utc` is the time of the device.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const UserNameToken &token,
                                     std::int64_t utc);

    /// The header "Authorization" of a request of that method. `now` is the time of the site.
    [[nodiscard]] LoginOutcome check(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                     const QByteArray &authorization, const QByteArray &method,
                                     std::int64_t now);

    /// The values of the headers "WWW-Authenticate" that ask for a login.
    [[nodiscard]] QByteArrayList challenges(const sdk::demo::SceneDevice &device, const DeviceManner &manner,
                                            bool isStale, std::int64_t now) const;

private:
    [[nodiscard]] LoginOutcome outcome(const sdk::demo::SceneDevice &device, const QString &user,
                                       const std::function<bool(const QString &password)> &isProved);

    sdk::demo::LoginGuard m_guard;
    const DigestNonces m_nonces;
};

} // namespace site
