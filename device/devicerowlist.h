#pragma once

#include <QHash>
#include <QJsonObject>
#include <QSet>
#include <QStringList>
#include <QVariantList>

#include <functional>
#include <optional>

/// An ordered list of rows with an index from a row's identity to its place. Not thread-safe: its owner
/// locks.
class DeviceRowList
{
public:
    using Change = std::function<void(QJsonObject &row)>;

    [[nodiscard]] const QVariantList &rows() const { return m_rows; }
    [[nodiscard]] bool contains(const QString &identity) const { return m_places.contains(identity); }

    void append(const QString &identity, const QJsonObject &row);
    void prepend(const QString &identity, const QJsonObject &row);

    /// The row, empty when there is none. Constant time.
    [[nodiscard]] QJsonObject row(const QString &identity) const;

    /// Identity of the first row that `isMeant` accepts.
    [[nodiscard]] std::optional<QString>
    identityOf(const std::function<bool(const QJsonObject &)> &isMeant) const;

    /// Identities of all rows that `isMeant` accepts.
    [[nodiscard]] QSet<QString> identitiesOf(const std::function<bool(const QJsonObject &)> &isMeant) const;

    /// Changes a row in its place. Returns false when there is none.
    bool change(const QString &identity, const Change &change);

    /// Removes rows, in one pass however many. Returns how many there were.
    int remove(const QSet<QString> &identities);

private:
    QVariantList m_rows;
    QStringList m_identities; ///< of the rows, in their order
    /// Places are counted from the first row ever appended, so that a row put in front moves none of the
    /// others.
    QHash<QString, qsizetype> m_places;
    qsizetype m_placeOfFront = 0;
};
