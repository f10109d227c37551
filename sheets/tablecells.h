// Reading the cells of a workbook whose row 1 has titles and whose other rows a user has filled in. The
// functions read the selected sheet; rows and columns count from 1.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QExcel;

namespace sheets {

/// True if the first cells of row 1 contain these titles, in their order. Spaces at the ends of the cells are
/// ignored. False also when a cell cannot be read.
[[nodiscard]] bool beginsWithTitles(QExcel &excel, const QStringList &titles);

/// The number of the last non-empty row, from 1; the spreadsheet application also counts rows that have only
/// formats. For an empty sheet it is below 1, with the spreadsheet application 1. It is below 1 if both the
/// first row and the number of rows of the used range cannot be read, and too small if one of them cannot be
/// read.
[[nodiscard]] int lastUsedRow(QExcel &excel);

/// The text of a cell without spaces at its ends; empty also when the cell cannot be read.
[[nodiscard]] QString trimmedCellText(QExcel &excel, int row, int column);

/// The integer of a cell's text with a number, such as "80" or "80.0"; a fraction is truncated. Spaces at the
/// ends are ignored. nullopt for other texts, and above 1,000,000,000 or below -1,000,000,000.
[[nodiscard]] std::optional<qint64> wholeNumber(const QString &cellText);

} // namespace sheets
