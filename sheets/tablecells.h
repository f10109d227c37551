// Reading the cells of a workbook that a user has filled in below a row of titles.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QExcel;

namespace sheets {

/// Whether the first row begins with these titles, in their order.
[[nodiscard]] bool beginsWithTitles(QExcel &excel, const QStringList &titles);

/// The last row that holds something; below 1 on failure.
[[nodiscard]] int lastUsedRow(QExcel &excel);

/// What a cell holds, without blanks at its ends; empty also when it cannot be read.
[[nodiscard]] QString trimmedCellText(QExcel &excel, int row, int column);

/// What was meant as a whole number, whether the cell held a number or a text such as "80.0"; any fraction is
/// cut off. Nothing for other texts and beyond a thousand million.
[[nodiscard]] std::optional<qint64> wholeNumber(const QString &cellText);

} // namespace sheets
