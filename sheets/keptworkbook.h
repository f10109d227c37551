// Saving a workbook with results, also when its file cannot be written.
#pragma once

#include <QString>

class QExcel;

/// Saves the workbook with QExcel::save(), so that its results are not lost. `path` is the file that the
/// workbook was opened from or last saved to. If that file cannot be written, the workbook is saved as a new
/// file in the folder of `path`, or else in the user's documents folder, which is created if missing. `path`
/// is then set to the new file, which later saves use. The name of the new file is that of `path` without its
/// suffix, "_", `addition`, a number from 2 (up to 999) if that file exists, and ".xlsx". Existing files are
/// not replaced.
///
/// Returns true if the workbook was saved: `path` is the file. Returns false when all attempts failed.
/// QExcel::errorText() then has the reason of the last attempt; `path` and the workbook are unchanged.
/// Failures are logged.
bool keepWorkbook(QExcel &workbook, QString &path, const QString &addition);
