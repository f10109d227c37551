// The process-wide device rows and search records.
#pragma once

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

    /// The raw search answer of the device, if one is kept.
    [[nodiscard]] std::optional<sdk::SearchAnswer> record(const QString &mac) const;

private:
    /// An ordered list of rows and the identities of those that it holds.
    struct RowList
    {
        QVariantList rows;
        QSet<QString> identities;
    };

    bool isNotificationDue();

    const std::shared_ptr<const sdk::Clock> m_clock;
    mutable std::mutex m_mutex;
    RowList m_ipv4;
    RowList m_ipv6;
    QHash<QString, QByteArray> m_records; ///< by MAC: the bytes of the answer without the zeros at its end
    std::optional<std::int64_t> m_lastNotification; ///< in milliseconds since the epoch
};
