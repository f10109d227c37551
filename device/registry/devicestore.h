// The process-wide device rows and search records.
#pragma once

#include "device/registry/devicerowlist.h"
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
///
/// A row is identified by its name, see rowName().
class DeviceStore
{
public:
    /// Rows of one search, in both lists together. Anyone on the network can answer under any number of MACs.
    static constexpr int maximumFound = 20'000;

    /// Writes to a row. Runs outside the store's lock on the caller's thread, so it may use the store. Runs
    /// again when the row was changed by another thread meanwhile, so it must depend on nothing but the row.
    using Change = std::function<void(QJsonObject &row)>;

    /// `clock` gives the time for the limit on notifications.
    explicit DeviceStore(std::shared_ptr<const sdk::Clock> clock);

    /// What adding an answer calls for.
    struct Addition
    {
        bool added = false;  ///< false: the answer was dropped
        bool notify = false; ///< at least a second has passed since the last notification
        int ipv4Count = 0;   ///< as ipv4Count() after the addition
    };

    /// Turns an answer into a row at its place. The first answer of a device wins; a loopback address goes to
    /// the head of its list. Answers of devices that were removed since clear() are dropped, as are those
    /// beyond maximumFound. Constant time, whatever the length of the list.
    ///
    /// A UUID belongs to the address that it was first seen with since clear(): a device at another one that
    /// reports it, too, is identified by its address. A MAC that a further answer of a device adds is taken
    /// into its row, also into one that was kept by the UUID: the row keeps its name, and the marks with it.
    Addition addAnswer(const sdk::SearchAnswer &answer);

    /// Answers of further devices that were dropped since clear(), because maximumFound rows had been found.
    [[nodiscard]] int leftOut() const;

    /// The name of the IPv4 row of the device that answered: of its MAC, of its UUID, or of its address and
    /// port when it reports neither. Empty when there is none.
    [[nodiscard]] QString nameOf(const sdk::SearchAnswer &answer) const;

    /// Takes over what the listed device `name` reports now: state, name, model, version, address and ports,
    /// a MAC that was not known, and the search record. What else the row holds stays, and so do texts that
    /// the device does not report any more. Does nothing, and returns false, unless there is an IPv4 row of
    /// this name that still shows `address`: a response may arrive after the row has got another one.
    bool updateRow(const QString &name, const sdk::SearchAnswer &answer, const QString &address);

    /// Names of the rows that clear() keeps: those of devices that the user still has to deal with.
    void setKept(const QSet<QString> &names);

    /// Removes every row and record, as a search begins, but for those that are kept. Their rows are "lost"
    /// until their devices are found again.
    void clear();

    [[nodiscard]] QVariantList ipv4Rows() const;
    [[nodiscard]] QVariantList ipv6Rows() const;
    [[nodiscard]] int ipv4Count() const; ///< without lost rows

    /// The IPv4 row of a device, or the first one of an address and port, a lost one only if there is no
    /// other; empty when there is none.
    [[nodiscard]] QJsonObject row(const QString &mac) const;
    [[nodiscard]] QJsonObject rowAt(const QString &ipport) const;

    /// The names of the rows of an address and port, of either list.
    [[nodiscard]] QStringList namesAt(const QString &ipport) const;

    /// The row of a name, of either list; empty when there is none.
    [[nodiscard]] QJsonObject rowNamed(const QString &name) const;

    // Changes return false when there is no such row. Constant time.

    bool changeRowNamed(const QString &name, const Change &change);

    /// Changes the IPv4 row of a device.
    bool changeRow(const QString &mac, const Change &change);

    /// Changes the first row of an address and port: of the IPv4 list, otherwise of the IPv6 list.
    bool changeRowAt(const QString &ipport, const Change &change);

    /// Adds a row that does not come from a search, with the answer of its device if it gave one: in the
    /// place of the device's row, or at the end. The row gets the number behind the last one.
    void putRow(QJsonObject row, const std::optional<sdk::SearchAnswer> &answer = {});

    /// Removes IPv4 rows with their search records, or IPv6 rows, by name. A running search does not bring
    /// them back.
    void removeRows(const QSet<QString> &names);
    void removeIPv6Rows(const QSet<QString> &names);

    /// The raw search answer of the device of a row, if one is kept.
    [[nodiscard]] std::optional<sdk::SearchAnswer> record(const QString &name) const;

    /// Keeps an answer as the record of a row, in place of any other.
    void putRecord(const QString &name, const sdk::SearchAnswer &answer);

private:
    struct Place
    {
        DeviceRowList *list = nullptr; ///< null: there is no such row
        QString name;
    };
    using Finder = std::function<Place()>; ///< called with the lock held

    /// Which IPv4 row a UUID belongs to.
    struct UuidHolder
    {
        QString ipport = {};
        QString name = {}; ///< of the row
    };

    // These are called with the lock held.
    [[nodiscard]] QString identityOf(const sdk::SearchAnswer &answer) const;
    bool takeMac(const QString &name, const QString &mac);
    [[nodiscard]] bool dropsLocked(const QString &identity);
    void addIPv6Locked(QJsonObject &row);
    [[nodiscard]] int ipv4CountLocked() const;
    bool changeFound(const Finder &find, const Change &change);
    bool isNotificationDue();

    const std::shared_ptr<const sdk::Clock> m_clock;
    mutable std::mutex m_mutex;
    DeviceRowList m_ipv4;
    DeviceRowList m_ipv6;
    QHash<QString, QByteArray> m_records; ///< by name: the answers, packed
    QSet<QString> m_kept;                 ///< names of rows
    QSet<QString> m_lost;                 ///< names of IPv4 rows
    QSet<QString> m_settled; ///< devices found or removed since clear(): further answers are dropped
    QHash<QString, UuidHolder> m_uuidHolders; ///< by uuidName(), since clear()
    QHash<QString, int> m_ipv6Found;          ///< IPv6 rows found since clear(), by address and port
    int m_found = 0;                          ///< rows found since clear()
    int m_leftOut = 0;
    std::optional<std::int64_t> m_lastNotification; ///< in milliseconds since the epoch
};
