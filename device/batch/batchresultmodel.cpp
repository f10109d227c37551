#include "device/batch/batchresultmodel.h"

#include "device/models/modelkeys.h"
#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int reloadPause = 250; // milliseconds

BatchResultModel::State stateOf(const Batch &batch, qsizetype entryIndex)
{
    const Batch::Entry &entry = batch.entries().at(entryIndex);
    const int result = entry.outcome.result;
    if (BatchReport::isSkipped(result))
        return BatchResultModel::Skipped;
    switch (result) {
    case BatchReport::Succeeded:
        return BatchResultModel::Succeeded;
    case BatchReport::Waiting:
        return BatchResultModel::Waiting;
    case BatchReport::NotDone:
        // A step may end without having done its work while the batch runs.
        return batch.isRunning() && !entry.time.isValid() ? BatchResultModel::ToCome
                                                          : BatchResultModel::NotDone;
    default:
        return BatchResultModel::Failed;
    }
}

} // namespace

BatchResultModel::BatchResultModel(QObject *parent) : DialogRows(parent)
{
    m_reloading.setSingleShot(true);
    m_reloading.setInterval(reloadPause);
    connect(&m_reloading, &QTimer::timeout, this, &BatchResultModel::reload);
}

void BatchResultModel::setBatch(Batch *batch)
{
    if (m_batch == batch)
        return;
    if (m_batch)
        m_batch->disconnect(this);
    m_batch = batch;
    if (m_batch) {
        connect(m_batch, &Batch::resulted, this, [this] {
            if (!m_reloading.isActive())
                m_reloading.start();
        });
        connect(m_batch, &Batch::finished, this, &BatchResultModel::reload);
        connect(m_batch, &QObject::destroyed, this, [this] {
            reload();
            Q_EMIT batchChanged();
        });
    }
    reload();
    Q_EMIT batchChanged();
}

void BatchResultModel::setOnlyFailed(bool only)
{
    if (std::exchange(m_onlyFailed, only) == only)
        return;
    reload();
    Q_EMIT onlyFailedChanged();
}

int BatchResultModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_batch ? 0 : static_cast<int>(m_entryIndexes.size());
}

void BatchResultModel::reload()
{
    m_reloading.stop();
    beginResetModel();
    m_entryIndexes.clear();
    if (m_batch) {
        const auto stateAt = [this](qsizetype entryIndex) {
            return stateOf(*m_batch, entryIndex);
        };
        for (qsizetype entryIndex = 0; entryIndex < m_batch->total(); ++entryIndex) {
            if (!m_onlyFailed || stateAt(entryIndex) <= NotDone)
                m_entryIndexes.append(entryIndex);
        }
        std::stable_sort(
            m_entryIndexes.begin(), m_entryIndexes.end(),
            [&stateAt](qsizetype left, qsizetype right) { return stateAt(left) < stateAt(right); });
    }
    endResetModel();
}

QVariantMap BatchResultModel::valuesOf(int row) const
{
    const qsizetype entryIndex = m_entryIndexes.at(row);
    const Batch::Entry &entry = m_batch->entries().at(entryIndex);
    const State state = stateOf(*m_batch, entryIndex);
    return {
        {RowKey::identity, QString::number(entryIndex)},
        {RowKey::device, entry.device.ipport},
        {DeviceRowKey::mac, macOf(entry.device)},
        {DeviceRowKey::name, entry.device.title},
        {DeviceRowKey::result, state == ToCome ? QString() : outcomeText(entry.outcome)},
        {RowKey::time, entry.time.toString(QStringLiteral("HH:mm:ss"))},
        {RowKey::state, state},
    };
}
