#include "device/batch/internal/batchresultswriter.h"

#include "device/registry/busystate.h"
#include "sdk/threadpriority.h"

#include <QCoreApplication>

BatchResultsWriter::BatchResultsWriter(BusyState &busyState) : m_busyState(busyState)
{
    m_thread.setMaxThreadCount(1);
}

BatchResultsWriter::~BatchResultsWriter()
{
    m_thread.waitForDone();
}

void BatchResultsWriter::write(const QList<BatchRecord> &records, const QString &path)
{
    if (records.isEmpty())
        return;
    const int work =
        m_busyState.begin(QCoreApplication::translate("Batches", "保存结果"), BusyState::Program);
    m_thread.start([this, path, work, records] {
        sdk::giveWayToWindow();
        const QString reason = saveBatchResults(records, path);
        QMetaObject::invokeMethod(
            this,
            [this, path, work, reason] {
                m_busyState.end(work);
                Q_EMIT written(path, reason);
            },
            Qt::QueuedConnection);
    });
}
