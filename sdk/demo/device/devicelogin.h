// The check of a login.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/neterror.h"

#include <QHash>

#include <mutex>
#include <utility>

namespace sdk::demo {

/// The two kinds of login, whose error codes differ.
enum class LoginKind
{
    First,
    Secure,
};

/// Counts the wrong passwords of accounts that may lock. Thread-safe.
class LoginGuard
{
public:
    /// NetError::None if `device` accepts the account, otherwise the error of the kind of login for a wrong
    /// password or, with Fault::AccountLoggedIn, for an account with a session. NoSuchAccount for an unknown
    /// account, NotSupported for an uninitialised device. With Fault::AccountLocked, the last attempt before
    /// the account locks fails as a wrong password; from then on the right password fails, too, with
    /// AccountLocked.
    [[nodiscard]] NetError check(const SceneDevice &device, const QString &account, const QString &password,
                                 LoginKind kind);

private:
    NetError checkPassword(const SceneDevice &device, const SceneAccount &account, const QString &password,
                           LoginKind kind);

    std::mutex m_mutex;
    QHash<std::pair<QString, QString>, int> m_wrongTries; // by MAC and account
};

/// The account `user` of `device`; null without one.
[[nodiscard]] const SceneAccount *accountOf(const SceneDevice &device, const QString &user);

/// The device information in the response to a login. `throughTunnel` sets its loginKind.
[[nodiscard]] LoginDeviceInformation loginInformation(const SceneDevice &device, bool throughTunnel);

} // namespace sdk::demo
