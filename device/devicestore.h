// The process-wide device rows and search records.
#pragma once

#include "device/devicerowlist.h"
#include "sdk/searchblocks.h"

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QVariantList>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace sdk {
class Clock;
}

/// The two ordered row lists (IPv4 and IPv6) and the raw search answer of each device, shared by all back
/// ends. Thread-safe: answers are added on threads of the network library while the scene's thread reads. A
/// reader gets a copy that may lack rows of a moment later, never a torn one.
class DeviceStore
{
public:
    /// `clock` gives the time for the limit on notifications.
    explicit DeviceStore(std::shared_ptr<const sdk::Clock> clock);

    /// What adding an answer calls for.
    struct Addition
    {
        bool added = false;  ///< false: the device has a row already, and the answer was dropped
        bool notify = false; ///< at least a second has passed since the last notification
        int ipv4Count = 0;   ///< rows of the IPv4 list after the addition
    };

    /// Turns an answer into a row at its place. The first answer of a device wins; a loopback address goes to
    /// the head of its list. Constant time, whatever the length of the list.
    Addition addAnswer(const sdk::SearchAnswer &answer);

    /// Forgets every row and record.
    void clear();

    [[nodiscard]] QVariantList ipv4Rows() const;
    [[nodiscard]] QVariantList ipv6Rows() const;
    [[nodiscard]] int ipv4Count() const;

    /// The IPv4 row of a device, or the first one of an address and port; empty when there is none.
    [[nodiscard]] QJsonObject row(const QString &mac) const;
    [[nodiscard]] QJsonObject rowAt(const QString &ipport) const;

    /// The row that pages name so: by its MAC, or by the address and port of one without, of either list.
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;
    bool changeRowNamed(const QString &name, const DeviceRowList::Change &change);

    /// Changes the IPv4 row of a device. Returns false when there is none.
    bool changeRow(const QString &mac, const DeviceRowList::Change &change);

    /// Changes the first row of an address and port, of either list.
    bool changeRowAt(const QString &ipport, const DeviceRowList::Change &change);

    /// Takes a row that does not come from a search: in the place of the device's row, or at the end.
    void putRow(const QJsonObject &row);

    /// Removes IPv4 rows by MAC, with their search records, or IPv6 rows by address and port.
    void removeRows(const QSet<QString> &macs);
    void removeIPv6Rows(const QSet<QString> &ipports);

    /// The raw search answer of the device, if one is kept.
    [[nodiscard]] std::optional<sdk::SearchAnswer> record(const QString &mac) const;

    /// Keeps an answer as the device's record, in place of any other.
    void putRecord(const sdk::SearchAnswer &answer);

private:
    [[nodiscard]] static std::optional<QString> identityAt(const DeviceRowList &list, const QString &ipport);
    [[nodiscard]] std::optional<QString> ipv6IdentityLocked(const QString &name) const;
    bool isNotificationDue();

    const std::shared_ptr<const sdk::Clock> m_clock;
    mutable std::mutex m_mutex;
    DeviceRowList m_ipv4;                 ///< by MAC
    DeviceRowList m_ipv6;                 ///< by MAC and address
    QHash<QString, QByteArray> m_records; ///< by MAC: the bytes of the answer without the zeros at its end
    std::optional<std::int64_t> m_lastNotification; ///< in milliseconds since the epoch
};
