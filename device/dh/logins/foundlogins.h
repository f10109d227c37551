#pragma once

#include "device/accounts/accountchoice.h"
#include "device/registry/loginresult.h"
#include "sdk/sdklibraries.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>

class DeviceStore;

/// Logs in to the devices that a search finds, sets "loggedIn" of their rows after a success and fills empty
/// fields: model, version and MAC (unless another row has it). If one of these was filled, it also fills the
/// serial number of the search record. Existing values are kept. The logins are logged out again.
///
/// A device gets one login in a search. The account that a device refused last is not sent to it again, also
/// not in later searches, since wrong passwords lock accounts. Logins run on up to 8 threads of this object.
/// Thread-safe.
class FoundLogins : public QObject
{
    Q_OBJECT
public:
    FoundLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);
    /// requestStop(), then waits for running logins.
    ~FoundLogins() override;

    /// Called when a search starts. Drops logins of the earlier search that have not started. `accounts`
    /// chooses the accounts of the logins; nullopt: no logins in this search.
    void begin(const std::optional<AccountChoice> &accounts);

    /// Starts logins to the listed IPv4 devices that are initialised, have not had one in this search and
    /// lack model, version or MAC, with the accounts of begin(). Leaves out devices whose account has neither
    /// user name nor password. Returns immediately. Does nothing before begin() and after stop().
    void logInToNew();

    /// Drops logins that have not started, and starts no further ones until the next begin(). Running logins
    /// continue.
    void stop();

    /// Blocks until no login is running or waiting for a thread.
    void waitForDone();

    /// stop() permanently: begin() has no effect any more. Running logins end at their next request. Does
    /// not wait.
    void requestStop();

Q_SIGNALS:
    /// A login has filled fields of a row; not emitted if only "loggedIn" was set. Emitted on a thread of
    /// this object.
    void rowsChanged();

private:
    void logIn(const QString &name, const QString &ipport, const DeviceAccount &account);
    void complete(const QString &name, const QString &ipport, std::int64_t loginHandle);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::stop_source m_stop;

    std::mutex m_mutex;                      ///< guards m_accounts, m_attempted and m_refused
    std::optional<AccountChoice> m_accounts; ///< nullopt while no logins are made
    QSet<QString> m_attempted;               ///< names of the rows whose login was started in this search
    QHash<QString, DeviceAccount>
        m_refused; ///< account that a device refused last, by name and by address of its row

    QThreadPool m_threads; ///< declared last: joined before the other members are destroyed
};
