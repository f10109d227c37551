// The device rows and search records of all back ends.
#pragma once

#include "device/store/devicerowlist.h"
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

/// The two ordered row lists (IPv4 and IPv6) and the search record of each device, its raw search response.
/// Shared by all back ends; in memory only. A row is identified by its name, see rowName(). Parameters called
/// `mac` or `name` are names of rows, `ipport` is an "address:port".
///
/// Thread-safe: threads of the network library add responses while the main thread reads. Returned rows are
/// copies, which do not follow later changes.
class DeviceStore
{
public:
    /// Maximum number of rows that one search adds to both lists together. It limits the effect of responses
    /// with forged MACs.
    static constexpr int maximumFound = 20'000;

    /// Changes a row. Called on the caller's thread without the lock, so it may use the store. Called again
    /// if another thread has changed the row meanwhile, so it must depend on the row only.
    using Change = std::function<void(QJsonObject &row)>;

    /// `clock` measures the minimum interval between notifications (Addition::notify).
    explicit DeviceStore(std::shared_ptr<const sdk::Clock> clock);

    /// The result of addResponse().
    struct Addition
    {
        bool added = false; ///< a row was added, or a lost row was replaced; false: the response was dropped
        /// The caller must notify the pages: the response has changed the list, and at least a second has
        /// passed since the last notification, or since the first change if there was none. A change that is
        /// not reported here is reported with a later one or by the end of the search.
        bool notify = false;
        int ipv4Count = 0; ///< ipv4Count() after the addition; may be 0 if `added` is false
    };

    /// Adds a row for a response of a search. Only the first response of a device since clear() adds a row,
    /// or replaces the lost row of the device. An IPv4 row with the loopback address is prepended unless its
    /// type is otherDeviceType(); other rows are appended. An IPv4 response is dropped if the row of its
    /// device was added by upsertRow() or was removed since clear(). Any response is dropped if the search
    /// has added maximumFound rows. Constant time.
    ///
    /// An IPv4 device without a MAC is identified by its UUID. A UUID belongs to the address that first
    /// reported it since clear(); a device with the same UUID at another address is identified by that
    /// address. If a later response of the device has a MAC, the MAC is written to its row; the row keeps its
    /// name and its marks. An IPv6 device has a row for each of its addresses.
    Addition addResponse(const sdk::SearchResponse &response);

    /// Number of responses that were dropped since clear() because the search had added maximumFound rows.
    [[nodiscard]] int leftOut() const;

    /// The name of the IPv4 row of the device that responded. It is found by the MAC of the response. For a
    /// response without a MAC it is found by the address and port; rows with a MAC or with another UUID at
    /// that address are not of this device. Otherwise it is found by the UUID. Empty if there is no row.
    [[nodiscard]] QString nameOf(const sdk::SearchResponse &response) const;

    /// Updates the IPv4 row `name` from an IPv4 response: state, name, model, version, address and ports, and
    /// the MAC if the row has none. The response becomes the search record. The row is no longer lost or
    /// unconfirmed. An empty name, model or version in the response changes nothing, and an HTTPS port in the
    /// row is kept. Other values are kept. Returns false without a change if there is no such row, or if the
    /// address of the row is not `address` (without a port), the address that the caller has queried: a
    /// response may arrive after the address was changed.
    bool updateRow(const QString &name, const sdk::SearchResponse &response, const QString &address);

    /// Sets the names of the rows, of both lists, that each later clear() keeps. The application keeps the
    /// rows of devices with failed operations.
    void setKept(const QSet<QString> &names);

    /// Called at the start of a search. Removes all rows, also those of upsertRow(), except those of
    /// setKept(), and all search records, except those of kept IPv4 rows. A kept row is "lost" until its
    /// device is found again.
    void clear();

    // The rows as QJsonObjects, in their order. They include lost rows.
    [[nodiscard]] QVariantList ipv4Rows() const;
    [[nodiscard]] QVariantList ipv6Rows() const;
    [[nodiscard]] int ipv4Count() const; ///< number of IPv4 rows that are not lost

    /// The IPv4 row of this name; empty if there is none.
    [[nodiscard]] QJsonObject row(const QString &mac) const;

    /// The first IPv4 row with this "ipport" that is not lost, otherwise the first lost one. Empty if there
    /// is none.
    [[nodiscard]] QJsonObject rowAt(const QString &ipport) const;

    /// The names of all rows with this "ipport": those of the IPv4 list, then those of the IPv6 list.
    [[nodiscard]] QStringList namesAt(const QString &ipport) const;

    /// The row of this name, of either list; empty if there is none.
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;

    // The change functions return whether the row exists, and do nothing if it does not. The row keeps its
    // name and position, also if `change` changes its MAC or address. No signal is emitted. Constant time.

    /// Changes the row of this name, of either list.
    bool changeRowNamed(const QString &name, const Change &change);

    /// Changes the IPv4 row of this name.
    bool changeRow(const QString &mac, const Change &change);

    /// Changes the IPv4 row of rowAt(), or a row of the IPv6 list if no IPv4 row has this "ipport".
    bool changeRowAt(const QString &ipport, const Change &change);

    /// Adds an IPv4 row that does not come from a search. `response` becomes its search record; without a
    /// response, an existing record is kept. The row replaces the row of the same name in its position,
    /// otherwise it is appended. A row without identity and MAC whose name belongs to a row at another
    /// address gets another name (key "duplicate") and is appended. "num" of the row becomes the number of
    /// IPv4 rows before this call plus 1.
    void upsertRow(QJsonObject row, const std::optional<sdk::SearchResponse> &response = {});

    // Remove rows by name. Names without a row are ignored.

    /// Removes IPv4 rows and their search records. addResponse() does not add these rows again before
    /// clear().
    void removeRows(const QSet<QString> &names);
    /// Removes IPv6 rows. Their search records are kept. addResponse() does not add a row again before
    /// clear() if it was found since the last clear(); a lost row is added again when its device responds.
    void removeIPv6Rows(const QSet<QString> &names);

    /// The search record of the IPv4 row of this name; nullopt if there is none. The record of a device that
    /// has only IPv6 rows is found by its MAC.
    [[nodiscard]] std::optional<sdk::SearchResponse> record(const QString &name) const;

    /// Sets the search record of the row with this name, which need not exist.
    void putRecord(const QString &name, const sdk::SearchResponse &response);

private:
    /// A row in one of the lists.
    struct RowReference
    {
        DeviceRowList *list = nullptr; ///< null: there is no such row
        QString name;
    };
    using Finder = std::function<RowReference()>; ///< called with m_mutex locked

    /// The IPv4 row that a UUID belongs to.
    struct UuidHolder
    {
        QString ipport = {};
        QString name = {}; ///< of the row
    };

    // The following require that m_mutex is locked.

    /// The key of the device in m_settled. For an IPv4 response it is also the name of its row.
    [[nodiscard]] QString identityOf(const sdk::SearchResponse &response) const;
    /// Writes the MAC to the IPv4 row of this name. Returns false without a change if the row has a MAC, or
    /// if another row is named by this MAC.
    bool takeMac(const QString &name, const QString &mac);
    /// Whether addResponse() drops the response of this device. Counts it in m_leftOut if maximumFound is the
    /// reason.
    [[nodiscard]] bool isDropped(const QString &identity);
    void addIPv6(QJsonObject &row);
    [[nodiscard]] int countIPv4() const;
    bool isNotificationDue(); ///< if true, the interval starts again

    /// Implements the change functions. Locks m_mutex itself.
    bool changeFound(const Finder &find, const Change &change);

    const std::shared_ptr<const sdk::Clock> m_clock;
    mutable std::mutex m_mutex;
    DeviceRowList m_ipv4;
    DeviceRowList m_ipv6;
    QHash<QString, QByteArray> m_records; ///< packed responses by name of the row
    QSet<QString> m_kept;                 ///< names of rows
    QSet<QString> m_lost;                 ///< names of IPv4 rows
    /// Devices (see identityOf()) that were found or removed since clear(): further responses are dropped.
    QSet<QString> m_settled;
    QHash<QString, UuidHolder> m_uuidHolders; ///< by uuidName(), since clear()
    QHash<QString, int> m_ipv6Found;          ///< IPv6 rows found since clear(), by address and port
    int m_found = 0;                          ///< rows found since clear()
    int m_leftOut = 0;
    std::optional<std::int64_t> m_lastNotification; ///< in milliseconds since the epoch
};
