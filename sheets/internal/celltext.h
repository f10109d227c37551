// Texts of cells: how the file format spells them, and how values are shown.
#pragma once

#include <QString>

namespace sheets {

/// The text as the file holds it: characters that XML cannot carry as "_xHHHH_", and what looks like one of
/// these with its own first underscore spelled that way.
[[nodiscard]] QString escapedCellText(const QString &text);

/// The text that `escaped` spells.
[[nodiscard]] QString unescapedCellText(const QString &escaped);

/// True for a text that is short enough for a cell.
[[nodiscard]] bool fitsCell(const QString &text);

/// A number with up to 15 digits, as a sheet shows it: binary fractions are stored with 17.
[[nodiscard]] QString numberText(double value);

/// A truth value as a sheet shows it.
[[nodiscard]] QString truthText(bool value);

} // namespace sheets
