#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVariantList>

#include <optional>

/// An ordered list of rows, indexed by the name of a row and by its "ipport". Not thread-safe: its owner
/// locks.
class DeviceRowList
{
public:
    [[nodiscard]] const QVariantList &rows() const { return m_rows; }
    [[nodiscard]] bool contains(const QString &name) const { return m_places.contains(name); }

    void append(const QString &name, const QJsonObject &row);
    void prepend(const QString &name, const QJsonObject &row);

    /// The row, empty when there is none. Constant time.
    [[nodiscard]] QJsonObject row(const QString &name) const;

    /// Name of the first row with this "ipport", of a lost one only if there is no other. Constant time,
    /// unless many rows share the address.
    [[nodiscard]] std::optional<QString> nameAt(const QString &ipport) const;

    /// Names of the rows with this "ipport", in their order.
    [[nodiscard]] QStringList namesAt(const QString &ipport) const;

    /// Puts a row in the place of the one of this name, which must exist and which the row keeps. Constant
    /// time, unless many rows share the address that it had or gets.
    void replace(const QString &name, QJsonObject row);

    /// Removes rows, in one pass however many.
    void remove(const QSet<QString> &names);

private:
    void addAddress(const QJsonObject &row, qsizetype place);
    void removeAddress(const QJsonObject &row, qsizetype place);

    QVariantList m_rows;
    QStringList m_names; ///< of the rows, in their order
    /// Places are counted from the first row ever appended, so that a row put in front moves none of the
    /// others.
    QHash<QString, qsizetype> m_places;
    qsizetype m_placeOfFront = 0;
    QHash<QString, QList<qsizetype>> m_placesByAddress; ///< ascending
};
