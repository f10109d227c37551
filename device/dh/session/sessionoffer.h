// Checks a session, and logs in if the device does not respond in it.
#pragma once

#include "device/dh/session/configsession.h"
#include "device/dh/session/securelogin.h"
#include "sdk/sdklibraries.h"

#include <QVariantList>

/// Parameters of offerSession().
struct SessionOrder
{
    QString ipport;
    QString account;
    QString password;
    std::int64_t handle = 0; ///< of the present session, 0 for none
    int channelCount = 0;    ///< of the present session's device
    bool isNewLogin = true;  ///< account differs from the present session's, or the user has just entered it
    bool readsChannels = true; ///< read the channels also if the present session is kept
};

/// Result of offerSession().
struct SessionOffer
{
    LoginResult result = LoginResult::Unknown;
    SecureLogin login;     ///< handle is 0 on failure, and if the present session is kept
    QVariantList channels; ///< see liveChannels(); empty unless requested or after a new login
};

/// Whether the device responds in the session. A refused request counts as a response, unless the device
/// refuses the login of the session. Blocks for up to two seconds; any thread.
[[nodiscard]] bool respondsInSession(const ConfigSession &session);

/// Checks the present session, and logs in if the device does not respond in it, for example after a restart.
/// If the device has refused the session's login, the same login is not sent again: the result is
/// SessionEnded or the refusal. Blocks for the timeouts of the library; any thread.
[[nodiscard]] SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order);
