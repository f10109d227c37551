// Rows of test data for the functions "..._data()" of Qt Test. The compiler checks the types of the values.
#pragma once

#include <QTest>
#include <QVariant>

#include <array>

/// Adds the columns with these names and types to the data of a test. Returns a function that adds a row; its
/// arguments are the title of the row and a value for each column.
template<typename... Columns>
auto dataTable(const std::array<const char *, sizeof...(Columns)> &names)
{
    const auto *name = names.data();
    (QTest::addColumn<Columns>(*name++), ...);
    return [](const QByteArray &title, const Columns &...values) {
        (QTest::newRow(title.constData()) << ... << values);
    };
}

/// The same, but the returned function takes the values only: the title of a row consists of its values,
/// separated by spaces.
template<typename... Columns>
auto namedTable(const std::array<const char *, sizeof...(Columns)> &names)
{
    return [row = dataTable<Columns...>(names)](const Columns &...values) {
        const QStringList texts = {QVariant::fromValue(values).toString()...};
        row(texts.join(u' ').toUtf8(), values...);
    };
}
