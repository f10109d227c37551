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

/// Queries listed devices again, each at the address of its row, after work that changed what the row shows.
/// A device that does not respond there is then searched by its MAC in the local segment: its row takes the
/// address that it reports. Only the response of the device itself counts; its row and search record take
/// over what it reports. Ticks and results of work stay.
///
/// Lives on the scene's thread. Each start is one task on the process-wide worker pool.
class DeviceRefresh : public QObject
{
    Q_OBJECT
public:
    DeviceRefresh(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries);

    /// Waits for the running tasks, which it ends.
    ~DeviceRefresh() override;

    /// Makes running tasks end at their next step, without waiting for them.
    void requestStop();

    /// `names` are the names of rows. Devices behind a tunnel and those with an IPv6 address are left out: no
    /// search of IPv4 addresses reaches them. A device that does not respond, or is not initialised yet, is
    /// queried again up to three times, within 12 s for up to 4096 devices, and 3 s more by its MAC. Returns
    /// at once.
    void start(const QStringList &names);

    /// The same with one query, on the caller's thread, which may be any other: returns within 6 s for up to
    /// 4096 devices. A name without a row is the MAC or the UUID of a device that is no longer listed: it is
    /// searched by that, and gets a row when it responds.
    void locate(const QStringList &names, const std::stop_token &stop);

Q_SIGNALS:
    void rowsChanged(); ///< from threads of the network library, once for each response

private:
    [[nodiscard]] QHash<QString, QString> addressesOf(const QStringList &names) const;
    void run(const QHash<QString, QString> &devices, int attempts, const std::stop_token &stop);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    std::stop_source m_stop;
    QList<QFuture<void>> m_tasks;
};
