// Logging in to listed devices with the accounts that are chosen for them.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/dh/session/securelogin.h"
#include "device/registry/devicestep.h"
#include "sdk/loginblocks.h"
#include "sdk/sdklibraries.h"

#include <QJsonObject>

#include <functional>
#include <memory>

class DeviceStore;

/// Chooses the accounts of devices and logs in with them. Any thread, but for what changes the accounts. The
/// logins block for the waits of the library.
class DeviceLogins
{
public:
    DeviceLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// The accounts that the user keeps for devices. Before anything else is called.
    void setStoredAccounts(const AccountChoice::Stored &stored) { m_accounts.setStored(stored); }

    /// On the scene's thread.
    void setDefaultAccount(const DeviceAccount &account) { m_accounts.setDefault(account); }
    void setFollowingAccount(const DeviceAccount &account) { m_accounts.setFollowing(account); }

    [[nodiscard]] const AccountChoice &accounts() const { return m_accounts; }

    /// Of the device's row; the default account for what the row does not have.
    [[nodiscard]] DeviceAccount accountAt(const QString &ipport) const;
    [[nodiscard]] DeviceAccount accountOf(const QJsonObject &row) const;

    /// Logs in as secureLogin() does, and notes in the row whether the device has let the account in.
    [[nodiscard]] SecureLogin logIn(const QString &ipport, const DeviceAccount &account) const;

    /// Notes in the row whether the device has let its account in.
    void note(const QString &ipport, LoginResult result) const;

    /// Runs `work` in a login of its own, unless the step ends first. The outcome of a login that fails is
    /// its result.
    [[nodiscard]] StepOutcome inLogin(const QString &ipport, const DeviceAccount &account,
                                      const StepControl &control,
                                      const std::function<StepOutcome(sdk::LLONG loginHandle)> &work) const;

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    AccountChoice m_accounts;
};
