// Writes the results of batches to a file.
#pragma once

#include "device/batch/batch.h"

/// The results of one batch.
struct BatchRecord
{
    QString title;
    QList<Batch::Entry> entries;
};

/// Writes a title line and one line for each device: address and port, MAC, name and model, title of the
/// batch, result text, time ("yyyy-MM-dd HH:mm:ss"). The file is a workbook, or comma-separated UTF-8 text if
/// the path ends in ".csv" (upper or lower case). Any thread. Returns an error message and leaves the file
/// unchanged on failure; empty on success.
[[nodiscard]] QString saveBatchResults(const QList<BatchRecord> &records, const QString &path);
