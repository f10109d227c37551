// The order of rows in a table that the user sorts by a column.
#pragma once

#include <QByteArray>
#include <QCollator>
#include <QJsonObject>
#include <QString>
#include <QVariantList>

/// Compares rows by one key: "ipport" by the bytes of the address and then the port, IPv4 before IPv6; "mac"
/// by its bytes; "vision" by its numbers in their order; other texts by the user's language, with numbers
/// inside them by value; numbers and flags by value.
class DeviceOrder
{
public:
    /// Where rows stand whose "ipport" is no IPv4 address.
    enum class OddAddresses
    {
        Behind,
        AsZero,
    };

    explicit DeviceOrder(QString key, OddAddresses oddAddresses = OddAddresses::Behind);

    /// Position of a row in the order, made once for each row before sorting. Parts are compared in their
    /// order.
    struct SortKey
    {
        int group = 0; ///< 0 unless values of the column are of several kinds
        double number = 0;
        QByteArray bytes = {}; ///< compared byte by byte
        QCollatorSortKey text;
    };
    [[nodiscard]] SortKey sortKey(const QJsonObject &row) const;

    /// Negative, zero or positive, as `left` stands before, beside or behind `right`.
    [[nodiscard]] static int compare(const SortKey &left, const SortKey &right);

    /// Rows (JSON objects) in this order; equal ones keep theirs.
    [[nodiscard]] QVariantList ordered(const QVariantList &rows) const;

    /// Whether a group of devices of the type `left` stands before one of `right`: by the alphabet, with
    /// "PC-NVR" and then "Other" at the end, since they are no device hardware.
    [[nodiscard]] static bool isGroupBefore(const QString &left, const QString &right);

private:
    void placeAddress(SortKey &key, const QString &ipport) const;

    const QString m_key;
    const OddAddresses m_oddAddresses;
    QCollator m_collator;
};
