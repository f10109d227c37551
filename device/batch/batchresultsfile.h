// Writes the results of batches to a file.
#pragma once

#include "device/batch/batch.h"

/// The results of one batch.
struct BatchRecord
{
    QString title;
    QList<Batch::Entry> entries;
};

/// Writes the results of these batches to one file, which is replaced if it exists. It has a title line and
/// one line for each device: address and port, MAC, name and model, title of the batch, result text, time of
/// the result ("yyyy-MM-dd HH:mm:ss", local time; empty without a result). Titles and results are in the
/// user's language. The file is a workbook, or comma-separated UTF-8 text with a byte order mark if the path
/// ends in ".csv" (upper or lower case). An apostrophe precedes the text of a ".csv" field that a spreadsheet
/// application would read as a formula. Returns an empty string on success, otherwise an error text, which is
/// not translated for a workbook; the file is unchanged then. Any thread; blocks until the file is written.
[[nodiscard]] QString saveBatchResults(const QList<BatchRecord> &records, const QString &path);
