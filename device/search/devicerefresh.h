#pragma once

#include "sdk/sdklibraries.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

#include <memory>
#include <stop_token>

class DeviceStore;
template<typename T>
class QFuture;

/// Queries listed devices again after work that may have changed values that their rows show. Each device is
/// queried at the address of its row. A device that does not respond there is searched in the local segment,
/// and its row gets the address that it reports. Responses of other devices change nothing: a response is
/// assigned to a row by DeviceStore::nameOf() and written by DeviceStore::updateRow(), which keeps the
/// account and the results ("res", "result", "upgraderes") of the row. A device that is not found keeps its
/// row unchanged.
///
/// Lives on the main thread, except locate(). Each start() is one task on the global thread pool. Without a
/// network library, nothing is sent.
class DeviceRefresh : public QObject
{
    Q_OBJECT
public:
    /// `store` must not be null. With a network library, the clock must not be null either.
    DeviceRefresh(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Stops the running tasks and waits for them.
    ~DeviceRefresh() override;

    /// Stops the tasks of start() at their next query, without waiting. A later start() sends nothing. Does
    /// not affect locate().
    void requestStop();

    /// Queries the devices of these IPv4 rows (names of rows) and returns immediately. Skips names without a
    /// row, devices behind a tunnel and devices with an IPv6 address, which these queries do not reach. Sends
    /// four queries one after another; the second to fourth go only to devices that have not responded yet,
    /// or whose response states that they are not initialised. A query takes up to 3 s for up to 4096
    /// devices, longer for more. The devices that are then still left are searched in the local segment for
    /// 3 s. The end is not reported.
    void start(const QStringList &names);

    /// Same with one query instead of four, on the caller's thread, which must not be the main thread. Blocks
    /// for about 6 s for up to 4096 devices; a request of `stop` ends it at the next query. A name without a
    /// row is the MAC or uuidName() of a device that was removed from the list: the device is searched in the
    /// local segment by this name, and gets a row when it responds.
    void locate(const QStringList &names, const std::stop_token &stop);

Q_SIGNALS:
    /// Emitted on any thread, for each response that updated or added a row.
    void rowsChanged();

private:
    /// The IPv4 addresses of the rows that can be queried, by name.
    [[nodiscard]] QHash<QString, QString> addressesOf(const QStringList &names) const;
    /// `devices` are addresses by name; a device without an address is only searched in the local segment.
    void run(const QHash<QString, QString> &devices, int attempts, const std::stop_token &stop);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::stop_source m_stop;
    QList<QFuture<void>> m_tasks;
};
