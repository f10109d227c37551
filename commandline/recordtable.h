// Results of a command as a table, JSON or comma-separated text.
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace commandline {

enum class RecordFormat
{
    Table,
    Json,
    Csv,
};

/// The format with this name; nullopt if there is none.
[[nodiscard]] std::optional<RecordFormat> recordFormat(QStringView name);

/// Records with the same columns. Values are texts, numbers and bool.
class RecordTable
{
public:
    /// `columns` are the keys in JSON and the headings of the other formats.
    explicit RecordTable(QStringList columns) : m_columns(std::move(columns)) {}

    /// Adds a record; `values` are parallel to the columns.
    void add(const QVariantList &values) { m_records.append(values); }

    [[nodiscard]] bool isEmpty() const { return m_records.isEmpty(); }

    /// UTF-8 with a line break at the end. A table without records consists of its headings, so does
    /// comma-separated text; JSON is always an array.
    [[nodiscard]] QByteArray text(RecordFormat format) const;

private:
    [[nodiscard]] QByteArray table() const;
    [[nodiscard]] QByteArray json() const;
    [[nodiscard]] QByteArray csv() const;

    QStringList m_columns;
    QList<QVariantList> m_records;
};

} // namespace commandline
