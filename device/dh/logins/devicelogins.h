// Logins to listed devices with the account that belongs to each.
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

/// Chooses the accounts of devices and logs in with them. Thread-safe, except for the setters: no other
/// function may run during a setter. Logins block for the timeouts of the device library.
class DeviceLogins
{
public:
    DeviceLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Sets the function that returns stored accounts. Must be called before any other function.
    void setStoredAccounts(const AccountChoice::Stored &stored) { m_accounts.setStored(stored); }

    // See AccountChoice. Main thread.
    void setDefaultAccount(const DeviceAccount &account) { m_accounts.setDefault(account); }
    void setFollowingAccount(const DeviceAccount &account) { m_accounts.setFollowing(account); }

    [[nodiscard]] const AccountChoice &accounts() const { return m_accounts; }

    /// The account for a login to the device at this address and port: the account in its row, otherwise the
    /// stored or the default account (see AccountChoice). The default account for a device without a row.
    [[nodiscard]] DeviceAccount accountAt(const QString &ipport) const;
    /// Same for the device of a row (keys of DeviceRowKey); an empty row is a device without a row.
    [[nodiscard]] DeviceAccount accountOf(const QJsonObject &row) const;

    /// Logs in with secureLogin(), which blocks, and sets "loggedIn" of the device's row, if it has one: true
    /// after a success, otherwise false. The caller logs out a successful login.
    [[nodiscard]] SecureLogin logIn(const QString &ipport, const DeviceAccount &account) const;

    /// Sets "loggedIn" of the row at this address and port to whether `result` is a success.
    void note(const QString &ipport, LoginResult result) const;

    /// Logs in as logIn() does, runs `work` with the handle of the login, and logs out. Returns the outcome
    /// of `work`, the result of a failed login, or NotDone if `control` ends the step before `work`; `work`
    /// is not called in the last two cases.
    [[nodiscard]] StepOutcome inLogin(const QString &ipport, const DeviceAccount &account,
                                      const StepControl &control,
                                      const std::function<StepOutcome(sdk::LLONG loginHandle)> &work) const;

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    AccountChoice m_accounts;
};
