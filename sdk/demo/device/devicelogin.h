// The check of a login to a simulated device, and its response.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/neterror.h"

#include <QHash>

#include <mutex>
#include <utility>

namespace sdk::demo {

/// The two kinds of login, whose error codes for a wrong password and an account with a session differ.
enum class LoginKind
{
    First,  ///< NetLogin: WrongPassword, AccountLoggedIn
    Secure, ///< NetLoginSecure: WrongPasswordSecure or WrongPasswordTriesLeft, AccountLoggedInSecure
};

/// Checks logins, and counts the wrong passwords for devices with Fault::AccountLocked, by device and
/// account. Thread-safe.
class LoginGuard
{
public:
    /// Returns None if `device` accepts the login, otherwise the error of the first check that fails:
    ///
    /// - NotSupported for an uninitialised device.
    /// - NoSuchAccount for an unknown account.
    /// - AccountLocked, with Fault::AccountLocked, if FaultSetting::number wrong passwords were given since
    ///   the last right one. From then on the right password is not accepted either.
    /// - The error of `kind` for a wrong password, with Fault::WrongPassword for any password. With
    ///   Fault::AccountLocked, LoginKind::Secure returns WrongPasswordTriesLeft if the account does not lock
    ///   after this attempt.
    /// - The error of `kind` for an account with a session, with Fault::AccountLoggedIn.
    [[nodiscard]] NetError check(const SceneDevice &device, const QString &account, const QString &password,
                                 LoginKind kind);

private:
    NetError checkPassword(const SceneDevice &device, const SceneAccount &account, const QString &password,
                           LoginKind kind);

    std::mutex m_mutex;
    QHash<std::pair<QString, QString>, int> m_wrongTries; // by MAC and account
};

/// The account `user` of `device`, which owns it; null without one.
[[nodiscard]] const SceneAccount *accountOf(const SceneDevice &device, const QString &user);

/// The device information in the response to a login, with the device's faults applied to its strings.
/// `throughTunnel` sets its loginKind. An unknown type has a deviceType of 0.
[[nodiscard]] LoginDeviceInformation loginInformation(const SceneDevice &device, bool throughTunnel);

} // namespace sdk::demo
