// The order of rows in a table that the user sorts by a column.
#pragma once

#include <QCollator>
#include <QJsonObject>
#include <QString>

/// Compares rows by one key: "ipport" by address and then port as numbers; texts by the user's language, with
/// numbers inside them by value; numbers and flags by value.
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

    /// Position of a row in the order, made once for each row before sorting.
    struct SortKey
    {
        bool behind = false; ///< stands behind all rows whose value can be read
        double number = 0;
        QCollatorSortKey text;
    };
    [[nodiscard]] SortKey sortKey(const QJsonObject &row) const;

    /// Negative, zero or positive, as `left` stands before, beside or behind `right`.
    [[nodiscard]] static int compare(const SortKey &left, const SortKey &right);

private:
    const QString m_key;
    const OddAddresses m_oddAddresses;
    QCollator m_collator;
};
