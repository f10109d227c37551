#pragma once

#include "device/batch/batchresultsfile.h"

#include <QObject>
#include <QThreadPool>

class BusyState;

/// Writes results of batches to files on a separate thread, one file after another. The work is registered in
/// BusyState until the file is written.
///
/// Part of Batches. Lives on the main thread.
class BatchResultsWriter : public QObject
{
    Q_OBJECT
public:
    /// `busyState` must outlive this object.
    explicit BatchResultsWriter(BusyState &busyState);

    /// Waits until pending files are written. written() is not emitted then.
    ~BatchResultsWriter() override;

    /// Writes the records to the file `path` (a local path) and returns immediately, see saveBatchResults().
    /// written() follows. Does nothing if `records` is empty.
    void write(const QList<BatchRecord> &records, const QString &path);

Q_SIGNALS:
    /// `reason` is empty on success, otherwise an error message; the file is unchanged then.
    void written(const QString &path, const QString &reason);

private:
    BusyState &m_busyState;
    QThreadPool m_thread; ///< one thread
};
