// Finding out whether there is a session with a device, and making one where there is none.
#pragma once

#include "device/dh/session/configsession.h"
#include "device/dh/session/securelogin.h"
#include "sdk/sdklibraries.h"

#include <QVariantList>

/// A device that is to be worked with.
struct SessionOrder
{
    QString ipport;
    QString account;
    QString password;
    std::int64_t handle = 0; ///< of the session that there is with it, 0 for none
    int channelCount = 0;    ///< of that session's device
    bool isNewLogin = true;  ///< another one than that session's, or one that the user has just given
    bool readsChannels = true;
};

/// What came of it.
struct SessionOffer
{
    LoginResult result = LoginResult::Unknown;
    SecureLogin login; ///< its handle is 0 when the session that there was goes on, and on failure
    QVariantList
        channels; ///< as liveChannels() has them, where they were asked for or the login is a new one
};

/// Whether the device answers in the session, also when it refuses a request. Blocks for up to two seconds;
/// any thread.
[[nodiscard]] bool answersInSession(const ConfigSession &session);

/// Asks the device in the session that there is, and logs in to it when it does not answer there: after a
/// restart it has forgotten the session. A login that the device has refused is not sent again: the result
/// then is SessionEnded, or the refusal. Blocks for the waits of the library; any thread.
[[nodiscard]] SessionOffer offerSession(const sdk::SdkLibraries &libraries, const SessionOrder &order);
