#include "device/batch/batchhistory.h"

#include "device/models/modelkeys.h"

#include <utility>

BatchHistory::BatchHistory(QObject *parent) : DialogRows(parent) {}

void BatchHistory::setBatches(Batches *batches)
{
    if (m_batches == batches)
        return;
    if (m_batches)
        m_batches->disconnect(this);
    m_batches = batches;
    beginResetModel();
    for (Batch *batch : std::as_const(m_shown))
        batch->disconnect(this);
    m_shown.clear();
    if (m_batches) {
        connect(m_batches, &Batches::currentChanged, this, &BatchHistory::takeNewest);
        for (Batch *batch : m_batches->kept())
            show(batch);
    }
    endResetModel();
    Q_EMIT batchesChanged();
}

Batch *BatchHistory::batchAt(int row) const
{
    return m_batches ? m_shown.value(row) : nullptr;
}

int BatchHistory::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_batches ? 0 : static_cast<int>(m_shown.size());
}

void BatchHistory::show(Batch *batch)
{
    m_shown.prepend(batch);
    connect(batch, &Batch::changed, this, [this, batch] { refresh(batch); });
}

void BatchHistory::takeNewest()
{
    // Single rows are removed and inserted: a reset would lose the current row of the view.
    while (!m_shown.isEmpty() && !m_batches->kept().contains(m_shown.constLast())) {
        const int last = rowCount() - 1;
        beginRemoveRows(QModelIndex(), last, last);
        m_shown.takeLast()->disconnect(this);
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), 0, 0);
    show(m_batches->current());
    endInsertRows();
}

void BatchHistory::refresh(const Batch *batch)
{
    const QModelIndex row = index(static_cast<int>(m_shown.indexOf(batch)));
    if (row.isValid())
        Q_EMIT dataChanged(row, row);
}

QVariantMap BatchHistory::valuesOf(int row) const
{
    Batch &batch = *m_shown.at(row);
    const BatchReport &report = *batch.report();
    const int counted = batch.isRunning() ? batch.done() : report.succeeded() + report.waiting();
    return {
        {RowKey::identity, batch.began().toString(Qt::ISODateWithMs)},
        {RowKey::title, batch.title()},
        {RowKey::time, batch.began().toString(QStringLiteral("HH:mm:ss"))},
        {RowKey::counts, QStringLiteral("%1 / %2").arg(counted).arg(batch.total())},
        {RowKey::complete, !batch.isRunning() && report.failed() + report.notDone() == 0},
        {RowKey::running, batch.isRunning()},
    };
}
