// The results of a batch as a file of the user.
#pragma once

#include <QList>
#include <QStringList>

class Batch;

/// A line of titles and one for each device: its address, MAC, name and model, the title of the batch, the
/// result in words and its time.
[[nodiscard]] QList<QStringList> batchResultLines(const Batch &batch);

/// Writes the lines, on any thread: as a workbook, or as comma-separated text in UTF-8 for a path that ends
/// in
/// ".csv". Returns the reason when the file could not be written, and leaves it as it was; empty on success.
[[nodiscard]] QString saveBatchResults(const QList<QStringList> &lines, const QString &path);
