// Saving a workbook with results, also when its file cannot be written.
#pragma once

#include <QString>

class QExcel;

/// Writes the workbook to `path`, the file that it was opened from. If that fails, it writes a new file next
/// to it or in the user's documents folder, and sets `path` to it. Its name is that of `path` with "_" and
/// `addition` appended, with a number from 2 if that file exists, and ".xlsx". Returns false when all of that
/// failed: QExcel::errorText() has the reason, and the workbook is unchanged.
bool keepWorkbook(QExcel &workbook, QString &path, const QString &addition);
