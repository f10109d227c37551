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

/// Logs in to the devices that a search finds, with the account of each, and completes their rows: model,
/// version and MAC, and the serial number of the search record. What a row holds already stays.
///
/// A device is asked once in a search. One that has refused its account is not asked again until it has
/// another one: wrong passwords lock accounts. Requests run on threads of the object. Thread-safe.
class FoundLogins : public QObject
{
    Q_OBJECT
public:
    FoundLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);
    ~FoundLogins() override;

    /// A search begins. No device is asked in it without `accounts`.
    void begin(const std::optional<AccountChoice> &accounts);

    /// Asks the listed devices that were not asked in this search and lack something. Returns at once.
    void askNew();

    /// Drops what has not begun, and asks no further device until the next search.
    void stop();

    /// Blocks until no login is under way.
    void waitForDone();

    /// As stop(), for good: what has begun ends at its next request.
    void requestStop();

Q_SIGNALS:
    /// From any thread.
    void rowsChanged();

private:
    void ask(const QString &name, const QString &ipport, const DeviceAccount &account);
    void complete(const QString &name, const QString &ipport, std::int64_t loginHandle);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::stop_source m_stop;

    std::mutex m_mutex;                      ///< of what follows
    std::optional<AccountChoice> m_accounts; ///< nothing while no device is asked
    QSet<QString> m_asked;                   ///< names of the rows, in this search
    QHash<QString, DeviceAccount>
        m_refused; ///< which account a device refused last, by name and address of its row

    QThreadPool m_threads; ///< ends before what its tasks use
};
