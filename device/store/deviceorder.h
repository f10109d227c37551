// The order of rows in a table that the user sorts by a column.
#pragma once

#include <QByteArray>
#include <QCollator>
#include <QJsonObject>
#include <QString>
#include <QVariantList>

/// Compares rows by one key: "ipport" by the bytes of the address and then the port, IPv4 before IPv6; "mac"
/// by its bytes, invalid ones last; "vision" by its numbers and words; other strings by the rules of the
/// user's language without case, with numbers in them by value; numbers by value; false before true.
class DeviceOrder
{
public:
    /// The position of rows whose "ipport" is not an IPv4 address.
    enum class OddAddresses
    {
        Last,   ///< IPv6 addresses, then other texts
        AsZero, ///< as 0.0.0.0
    };

    explicit DeviceOrder(QString key, OddAddresses oddAddresses = OddAddresses::Last);

    /// The sort key of a row, computed once for each row before sorting. The members are compared in their
    /// order.
    struct SortKey
    {
        int group = 0; ///< 0 unless the column has several kinds of values
        double number = 0;
        QByteArray bytes = {}; ///< compared byte by byte
        QCollatorSortKey text;
    };
    [[nodiscard]] SortKey sortKey(const QJsonObject &row) const;

    /// Negative if `left` is before `right`, 0 if both are equal, positive if `left` is after `right`.
    [[nodiscard]] static int compare(const SortKey &left, const SortKey &right);

    /// The rows (JSON objects) in this order. The sort is stable.
    [[nodiscard]] QVariantList ordered(const QVariantList &rows) const;

    /// Whether a group of devices of the type `left` is before one of `right`: alphabetically, with "PC-NVR"
    /// and then otherDeviceType() at the end, since they are not device hardware.
    [[nodiscard]] static bool isGroupBefore(const QString &left, const QString &right);

private:
    void setAddress(SortKey &key, const QString &ipport) const;

    const QString m_key;
    const OddAddresses m_oddAddresses;
    QCollator m_collator;
};
