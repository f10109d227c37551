// Checks a session, and logs in if the device does not respond in it.
#pragma once

#include "device/dh/session/configsession.h"
#include "device/dh/session/securelogin.h"
#include "sdk/sdklibraries.h"

#include <QVariantList>

/// Parameters of offerSession().
struct SessionOrder
{
    QString ipport; ///< "address:port"
    QString account;
    QString password;
    std::int64_t handle = 0; ///< of the present session, 0 for none
    int channelCount = 0;    ///< of the present session's device
    /// The account differs from that of the present session, or the user has just entered it.
    bool isNewLogin = true;
    bool isGivenNow = false;   ///< the user has just entered the account: it is checked by a login
    bool readsChannels = true; ///< read the channels also if the present session is kept
};

/// Result of offerSession().
struct SessionOffer
{
    LoginResult result = LoginResult::Unknown;
    SecureLogin login; ///< handle is 0 on failure, and if the present session is kept
    /// The channels as liveChannels() returns them: after a new login, and with SessionOrder::readsChannels
    /// also in the kept session. Otherwise empty.
    QVariantList channels;
};

/// Whether the device responds in the session. A refused request counts as a response. A refused connection,
/// and a device that no longer accepts the login of the session, do not. Blocks for up to two seconds; any
/// thread.
[[nodiscard]] bool respondsInSession(const ConfigSession &session);

/// Checks the present session, and logs in with the account of the order if there is none or the device does
/// not respond in it, for example after a restart. A session in which the device responds is kept unless
/// isGivenNow is set; the account of the order is not checked then. If the device no longer accepts the
/// present login and the order has no new one, no login is sent: the result is SessionEnded or the refusal.
/// Logs out nothing; the caller owns a new login. Blocks for the timeouts of the library; any thread.
[[nodiscard]] SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order);
