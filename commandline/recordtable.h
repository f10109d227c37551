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
    Table, ///< aligned columns for a terminal; control characters become spaces, bool is "yes" or "no"
    Json,  ///< an array with an object for each record; numbers and bool keep their types
    Csv,   ///< RFC 4180; bool is "true" or "false"
};

/// The format with the name "table", "json" or "csv"; nullopt for another name.
[[nodiscard]] std::optional<RecordFormat> recordFormat(QStringView name);

/// Records with the same columns. Values are texts, numbers, bool, or invalid for an empty field (null in
/// JSON).
class RecordTable
{
public:
    /// `columns` are the keys in JSON and the headings of the other formats; a table has them in capitals.
    explicit RecordTable(QStringList columns) : m_columns(std::move(columns)) {}

    /// Adds a record at the end; `values` are in the order of the columns.
    void add(const QVariantList &values) { m_records.append(values); }

    /// Whether there are no records.
    [[nodiscard]] bool isEmpty() const { return m_records.isEmpty(); }

    /// The records as UTF-8 text with a line break at the end. Without records, a table and comma-separated
    /// text consist of the headings, and JSON is an empty array.
    [[nodiscard]] QByteArray text(RecordFormat format) const;

private:
    [[nodiscard]] QByteArray table() const;
    [[nodiscard]] QByteArray json() const;
    [[nodiscard]] QByteArray csv() const;

    QStringList m_columns;
    QList<QVariantList> m_records;
};

} // namespace commandline
