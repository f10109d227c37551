// Texts of cells: their escaped form in the file format, and the display of values.
#pragma once

#include <QString>

namespace sheets {

/// The escaped text for the file: the carriage return and characters that XML cannot contain are written as
/// "_xHHHH_" (HHHH is the code in hexadecimal digits). If the text itself contains such a sequence, the first
/// underscore of the sequence is escaped.
[[nodiscard]] QString escapedCellText(const QString &text);

/// The text of the escaped form `escaped`, as read from a file; the reverse of escapedCellText().
[[nodiscard]] QString unescapedCellText(const QString &escaped);

/// True for a text whose escaped form is short enough for a cell: up to 32,767 characters.
[[nodiscard]] bool fitsCell(const QString &text);

/// A number with up to 15 digits, as a sheet shows it; the file stores up to 17 digits.
[[nodiscard]] QString numberText(double value);

/// A boolean as a sheet shows it: "TRUE" or "FALSE".
[[nodiscard]] QString truthText(bool value);

} // namespace sheets
