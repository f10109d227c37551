// The order of device rows in a table that the user sorts by a column.
#pragma once

#include <QByteArray>
#include <QCollator>
#include <QJsonObject>
#include <QString>
#include <QVariantList>

/// Compares device rows by the value of one key, in ascending order:
/// - "ipport" by the bytes of the address and then by the port; IPv4 before IPv6
/// - "mac" by its bytes; invalid and missing MACs last
/// - "vision" (a version) by its numbers and words: "v2.9" before "v2.10"
/// - other strings by the rules of the user's language; the case is ignored, and numbers in them are compared
///   by value
/// - numbers by value, false before true
///
/// Usable on any thread, by one thread at a time.
class DeviceOrder
{
public:
    /// The position of rows whose "ipport" is not an IPv4 address.
    enum class OddAddresses
    {
        Last,   ///< after the IPv4 addresses: IPv6 addresses, then other texts
        AsZero, ///< where 0.0.0.0 is: before other IPv4 addresses
    };

    /// `key` is a key of a row, see DeviceRowKey. `oddAddresses` is used for the key "ipport" only. The
    /// language is that of the default QLocale at this call.
    explicit DeviceOrder(QString key, OddAddresses oddAddresses = OddAddresses::Last);

    /// The comparable value of a row. Callers that sort compute it once for each row. The members are
    /// compared in their order.
    struct SortKey
    {
        int group = 0;         ///< kind of an address or a MAC: IPv4 or valid (0), IPv6 (1), other texts (2)
        double number = 0;     ///< value of a number, or 0 and 1 for a bool; 0 for a string
        QByteArray bytes = {}; ///< of an address, MAC or version; compared byte by byte; otherwise empty
        QCollatorSortKey text; ///< of a string in the user's language
    };
    [[nodiscard]] SortKey sortKey(const QJsonObject &row) const;

    /// Negative if `left` is before `right`, 0 if both are equal, positive if `left` is after `right`.
    [[nodiscard]] static int compare(const SortKey &left, const SortKey &right);

    /// The rows (JSON objects) in this order. The sort is stable.
    [[nodiscard]] QVariantList ordered(const QVariantList &rows) const;

    /// For lists with a group for each device type: whether the group of the type `left` is before the group
    /// of the type `right`. The order is alphabetical; "PC-NVR" and then otherDeviceType() are the last
    /// groups, since they are not device hardware.
    [[nodiscard]] static bool isGroupBefore(const QString &left, const QString &right);

private:
    void setAddress(SortKey &key, const QString &ipport) const;

    const QString m_key;
    const OddAddresses m_oddAddresses;
    QCollator m_collator;
};
