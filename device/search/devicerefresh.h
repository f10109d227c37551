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

/// Queries devices of the list again after work that changed values in their rows. Each device is queried at
/// the address of its row. A device that does not respond is searched by MAC in the local segment, and its
/// row gets the reported address. Only a response of the device itself updates its row and search record.
/// Checked states and results are kept.
///
/// Lives on the main thread. Each start() is one task on the global thread pool.
class DeviceRefresh : public QObject
{
    Q_OBJECT
public:
    DeviceRefresh(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Stops the running tasks and waits for them.
    ~DeviceRefresh() override;

    /// Stops running tasks at their next step, without waiting. A later start() sends nothing.
    void requestStop();

    /// Queries the devices of these rows and returns immediately. Skips devices behind a tunnel and devices
    /// with an IPv6 address, which these queries do not reach. Up to four queries of up to 3 s for up to 4096
    /// devices each are sent to devices that have not responded or are not initialised yet. These are then
    /// searched by MAC for 3 s.
    void start(const QStringList &names);

    /// Same with one query instead of four, on the caller's thread, which must not be the main thread. Blocks
    /// up to 6 s for up to 4096 devices. A name without a row is the MAC or uuidName() of a device that was
    /// removed from the list: it is searched by that, and gets a row when it responds.
    void locate(const QStringList &names, const std::stop_token &stop);

Q_SIGNALS:
    void rowsChanged(); ///< emitted on threads of the network library, for each response that changed a row

private:
    [[nodiscard]] QHash<QString, QString> addressesOf(const QStringList &names) const;
    void run(const QHash<QString, QString> &devices, int attempts, const std::stop_token &stop);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::stop_source m_stop;
    QList<QFuture<void>> m_tasks;
};
