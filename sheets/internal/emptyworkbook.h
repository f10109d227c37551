#pragma once

#include <QByteArray>
#include <QString>

namespace sheets {

/// The bytes of a workbook with one empty sheet, to be opened like one from a file. Empty when none could be
/// made, with the reason.
[[nodiscard]] QByteArray emptyWorkbook(QString &reason);

} // namespace sheets
