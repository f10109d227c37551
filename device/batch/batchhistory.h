#pragma once

#include "device/batch/batches.h"
#include "device/models/dialogrows.h"

#include <QPointer>

/// The kept batches of Batches as table rows, newest first. Keys of a row: "identity" (the time of the start
/// with milliseconds), "title", "time" (of the start, "HH:mm:ss"), "counts" ("done / total" while the batch
/// runs; after its end the succeeded and waiting devices are counted instead of the done ones), "running"
/// (bool) and "complete" (bool: the batch has ended, and no device failed or is not done). Updates itself.
/// Without a Batches object there are no rows. Lives on the main thread.
class BatchHistory : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(Batches *batches READ batches WRITE setBatches NOTIFY batchesChanged)
public:
    explicit BatchHistory(QObject *parent = nullptr);

    [[nodiscard]] Batches *batches() const { return m_batches; }
    void setBatches(Batches *batches);

    /// The batch of a row, owned by Batches; null if `row` is out of range.
    Q_INVOKABLE [[nodiscard]] Batch *batchAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

Q_SIGNALS:
    void batchesChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    void show(Batch *batch);
    void takeNewest();
    void refresh(const Batch *batch);

    QPointer<Batches> m_batches; ///< not owned
    QList<Batch *> m_shown;      ///< owned by m_batches
};
