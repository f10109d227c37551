// The results of batches as a file of the user.
#pragma once

#include "device/batch/batch.h"

/// What a file holds of a batch.
struct BatchRecord
{
    QString title;
    QList<Batch::Entry> entries;
};

/// Writes a line of titles and one for each device: its address, MAC, name and model, the title of the batch,
/// the result in words and its time. As a workbook, or as comma-separated text in UTF-8 for a path that ends
/// in ".csv"; on any thread. Returns the reason when the file could not be written, and leaves it as it was;
/// empty on success.
[[nodiscard]] QString saveBatchResults(const QList<BatchRecord> &records, const QString &path);
