// Keeping a workbook that took work to fill, also when its own file cannot be written.
#pragma once

#include <QString>

class QExcel;

/// Writes the workbook into `path`, which it was opened from, or else into a new file beside it or among the
/// user's documents, whose name is that of `path` with "_" and `addition` behind it. `path` is then the file
/// that holds it. Returns false when all of that failed: QExcel::errorText() says why, and the workbook is
/// as it was.
bool keepWorkbook(QExcel &workbook, QString &path, const QString &addition);
