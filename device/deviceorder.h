// The order of rows in a table that the user sorts by a column.
#pragma once

#include <QCollator>
#include <QJsonObject>
#include <QString>

/// Compares rows by one key: "ipport" by address and then port as numbers, with those that are no IPv4
/// address behind the others; texts by the user's language, with numbers inside them by value; numbers and
/// flags by value.
class DeviceOrder
{
public:
    explicit DeviceOrder(QString key);

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
    QCollator m_collator;
};
