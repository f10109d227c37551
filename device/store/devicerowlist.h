#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVariantList>

#include <optional>

/// An ordered list of device rows, indexed by the name of a row (see rowName()) and by its "ipport". Names
/// are unique, addresses are not. A copy is independent of the original. Not thread-safe: the owner,
/// DeviceStore, holds a lock during each call.
class DeviceRowList
{
public:
    [[nodiscard]] const QVariantList &rows() const { return m_rows; } ///< QJsonObjects, in their order
    /// Whether the list has a row of this name. Constant time.
    [[nodiscard]] bool contains(const QString &name) const { return m_positions.contains(name); }

    // Add a row at the end or at the start. `name` must be rowName() of the row, and the list must not
    // contain it.
    void append(const QString &name, const QJsonObject &row);
    void prepend(const QString &name, const QJsonObject &row);

    /// The row of this name; empty if there is none. Constant time.
    [[nodiscard]] QJsonObject row(const QString &name) const;

    /// Name of the first row with this "ipport" that is not lost, otherwise of the first lost one. nullopt if
    /// there is no such row. Constant time unless many rows share the address.
    [[nodiscard]] std::optional<QString> nameAt(const QString &ipport) const;

    /// Names of the rows with this "ipport", in their order.
    [[nodiscard]] QStringList namesAt(const QString &ipport) const;

    /// Replaces the row of this name, which must exist. The new row gets the position and the name of the old
    /// one: if its own name differs, `name` is stored in its "identity". Constant time unless many rows share
    /// the old or the new address.
    void replace(const QString &name, QJsonObject row);

    /// Removes rows in one pass. Names without a row are ignored.
    void remove(const QSet<QString> &names);

private:
    void addAddress(const QJsonObject &row, qsizetype position);
    void removeAddress(const QJsonObject &row, qsizetype position);

    QVariantList m_rows;
    QStringList m_names; ///< of m_rows, in the same order
    /// Positions by name. A position is the index of the row in m_rows plus m_firstPosition, so that
    /// prepending a row does not change the positions of the others.
    QHash<QString, qsizetype> m_positions;
    qsizetype m_firstPosition = 0;                         ///< 0 or negative
    QHash<QString, QList<qsizetype>> m_positionsByAddress; ///< ascending positions, by "ipport"
};
