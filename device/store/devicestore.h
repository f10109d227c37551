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

/// The two ordered row lists (IPv4 and IPv6) and the raw search response of each device, shared by all back
/// ends. A row is identified by its name, see rowName().
///
/// Thread-safe: threads of the network library add responses while the main thread reads. A reader gets a
/// consistent copy, which does not follow later changes.
class DeviceStore
{
public:
    /// Maximum number of rows of one search in both lists. It limits responses with forged MACs.
    static constexpr int maximumFound = 20'000;

    /// Changes a row. Called on the caller's thread without the lock, so it may use the store. Called again
    /// if another thread has changed the row meanwhile, so it must depend on the row only.
    using Change = std::function<void(QJsonObject &row)>;

    /// `clock` is for the minimum interval between notifications.
    explicit DeviceStore(std::shared_ptr<const sdk::Clock> clock);

    /// The result of addResponse().
    struct Addition
    {
        bool added = false; ///< false: the response was dropped
        /// The response has changed a row, and at least a second has passed since the last notification or
        /// the first change.
        bool notify = false;
        int ipv4Count = 0; ///< as ipv4Count() after the addition; may be 0 if `added` is false
    };

    /// Adds a row for the response. Only the first response of a device adds a row, or replaces the lost row
    /// of the device. An IPv4 row with the loopback address is prepended unless its type is
    /// otherDeviceType(); others are appended. Dropped are responses of devices that are listed without a
    /// search or were removed since clear(), and those beyond maximumFound. Constant time.
    ///
    /// A UUID belongs to the address that first reported it since clear(). A device with the same UUID at
    /// another address is identified by its address. A MAC in a later response is written to the row of the
    /// device, which keeps its name and its marks.
    Addition addResponse(const sdk::SearchResponse &response);

    /// Number of responses that were dropped since clear() because of maximumFound.
    [[nodiscard]] int leftOut() const;

    /// The name of the IPv4 row of the device that responded: by its MAC; if it reports none, by its address
    /// and port; then by its UUID. Empty if there is no row.
    [[nodiscard]] QString nameOf(const sdk::SearchResponse &response) const;

    /// Updates the IPv4 row `name` from a response: state, name, model, version, address and ports, the
    /// search record, and the MAC if it was unknown. The row is not lost or unconfirmed any more. Other
    /// values are kept, and so are an HTTPS port, and name, model and version that the response leaves empty.
    /// Returns false without a change if there is no such row, or if its address is not `address` any more: a
    /// response may arrive after the address was changed.
    bool updateRow(const QString &name, const sdk::SearchResponse &response, const QString &address);

    /// Sets the names of the rows that each later clear() keeps: those of devices with failures.
    void setKept(const QSet<QString> &names);

    /// Removes the rows and records at the start of a search, except those of setKept(). The kept rows are
    /// "lost" until their devices are found again.
    void clear();

    // The rows as QJsonObjects, in their order.
    [[nodiscard]] QVariantList ipv4Rows() const;
    [[nodiscard]] QVariantList ipv6Rows() const;
    [[nodiscard]] int ipv4Count() const; ///< number of IPv4 rows without the lost ones

    /// The IPv4 row of a name; empty if there is none.
    [[nodiscard]] QJsonObject row(const QString &mac) const;

    /// The first IPv4 row with an address and port that is not lost, otherwise the first lost one. Empty if
    /// there is none.
    [[nodiscard]] QJsonObject rowAt(const QString &ipport) const;

    /// The names of the rows with an address and port, of both lists.
    [[nodiscard]] QStringList namesAt(const QString &ipport) const;

    /// The row of a name, of either list; empty if there is none.
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;

    // The following return false if there is no such row. Constant time.

    bool changeRowNamed(const QString &name, const Change &change);

    /// Changes the IPv4 row of a name.
    bool changeRow(const QString &mac, const Change &change);

    /// Changes the first row with an address and port, of the IPv4 list, otherwise of the IPv6 list.
    bool changeRowAt(const QString &ipport, const Change &change);

    /// Adds an IPv4 row that does not come from a search, with the response of the device as its record if
    /// there is one. Replaces the row of the same device, or appends the row. Its "num" becomes the number of
    /// IPv4 rows plus 1.
    void upsertRow(QJsonObject row, const std::optional<sdk::SearchResponse> &response = {});

    /// Removes IPv4 rows with their search records, or IPv6 rows, by name. The running search does not add
    /// these IPv4 rows again.
    void removeRows(const QSet<QString> &names);
    void removeIPv6Rows(const QSet<QString> &names);

    /// The raw search response of the device of an IPv4 row, if there is one. Those of devices with IPv6 rows
    /// only are stored under their MACs.
    [[nodiscard]] std::optional<sdk::SearchResponse> record(const QString &name) const;

    /// Sets the search response of a row.
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
    [[nodiscard]] QString identityOf(const sdk::SearchResponse &response) const;
    bool takeMac(const QString &name, const QString &mac);
    [[nodiscard]] bool isDropped(const QString &identity);
    void addIPv6(QJsonObject &row);
    [[nodiscard]] int countIPv4() const;
    bool isNotificationDue();

    /// Locks m_mutex itself.
    bool changeFound(const Finder &find, const Change &change);

    const std::shared_ptr<const sdk::Clock> m_clock;
    mutable std::mutex m_mutex;
    DeviceRowList m_ipv4;
    DeviceRowList m_ipv6;
    QHash<QString, QByteArray> m_records; ///< packed responses by name of the row
    QSet<QString> m_kept;                 ///< names of rows
    QSet<QString> m_lost;                 ///< names of IPv4 rows
    QSet<QString> m_settled; ///< devices found or removed since clear(): further responses are dropped
    QHash<QString, UuidHolder> m_uuidHolders; ///< by uuidName(), since clear()
    QHash<QString, int> m_ipv6Found;          ///< IPv6 rows found since clear(), by address and port
    int m_found = 0;                          ///< rows found since clear()
    int m_leftOut = 0;
    std::optional<std::int64_t> m_lastNotification; ///< in milliseconds since the epoch
};
