// Reading the cells of a workbook with a row of titles, filled in by a user.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QExcel;

namespace sheets {

/// True if the first row starts with these titles, in their order. Spaces at the ends of the cells are
/// ignored.
[[nodiscard]] bool beginsWithTitles(QExcel &excel, const QStringList &titles);

/// The last row of QExcel's used range; below 1 on failure and for an empty sheet (1 with the spreadsheet
/// application).
[[nodiscard]] int lastUsedRow(QExcel &excel);

/// The text of a cell without spaces at its ends; empty also when it cannot be read.
[[nodiscard]] QString trimmedCellText(QExcel &excel, int row, int column);

/// The integer of a cell with a number or a text such as "80.0"; a fraction is truncated. Nothing for other
/// texts, and above 1,000,000,000 or below -1,000,000,000.
[[nodiscard]] std::optional<qint64> wholeNumber(const QString &cellText);

} // namespace sheets
