// Rows of test data whose types the compiler checks.
#pragma once

#include <QTest>
#include <QVariant>

#include <array>

/// Adds the columns of a test's data. Returns a function that adds a row: its title and a value for each
/// column.
template<typename... Columns>
auto dataTable(const std::array<const char *, sizeof...(Columns)> &names)
{
    const auto *name = names.data();
    (QTest::addColumn<Columns>(*name++), ...);
    return [](const QByteArray &title, const Columns &...values) {
        (QTest::newRow(title.constData()) << ... << values);
    };
}

/// The same for rows whose titles consist of their values.
template<typename... Columns>
auto namedTable(const std::array<const char *, sizeof...(Columns)> &names)
{
    return [row = dataTable<Columns...>(names)](const Columns &...values) {
        const QStringList texts = {QVariant::fromValue(values).toString()...};
        row(texts.join(u' ').toUtf8(), values...);
    };
}
