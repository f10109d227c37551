// Whether a device lets an account in.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/loginblocks.h"
#include "sdk/neterror.h"

#include <QHash>

#include <mutex>
#include <utility>

namespace sdk::demo {

/// The two kinds of login, which name some failures differently.
enum class LoginKind
{
    First,
    Secure,
};

/// Counts the wrong passwords of accounts that may lock. Thread-safe.
class LoginGuard
{
public:
    /// NetError::None when `device` lets the account in. A device that waits for its first password has no
    /// accounts and refuses with NotSupported. The last try before an account locks fails as a wrong
    /// password; from then on the right one fails as well.
    [[nodiscard]] NetError check(const SceneDevice &device, const QString &account, const QString &password,
                                 LoginKind kind);

private:
    NetError checkPassword(const SceneDevice &device, const SceneAccount &account, const QString &password,
                           LoginKind kind);

    std::mutex m_mutex;
    QHash<std::pair<QString, QString>, int> m_wrongTries; // by MAC and account
};

/// The account `user` of `device`, null when it has none.
[[nodiscard]] const SceneAccount *accountOf(const SceneDevice &device, const QString &user);

/// What `device` tells about itself at a login.
[[nodiscard]] LoginDeviceInformation loginInformation(const SceneDevice &device, bool throughTunnel);

} // namespace sdk::demo
