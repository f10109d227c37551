#pragma once

#include "device/batch/batch.h"
#include "device/models/dialogrows.h"

#include <QPointer>
#include <QTimer>

/// The devices of a batch as table rows, ordered by state and then as in the batch. Keys of a row: "device"
/// (address and port), "mac" (empty if unknown), "name" (and model), "result" (text), "time" and "state" (a
/// State). Updated every 250 ms while the batch runs. Lives on the main thread.
class BatchResultModel : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(Batch *batch READ batch WRITE setBatch NOTIFY batchChanged)
    Q_PROPERTY(bool onlyFailed READ onlyFailed WRITE setOnlyFailed NOTIFY onlyFailedChanged)
public:
    /// State of a device, in the order of the rows.
    enum State
    {
        Failed,
        NotDone,
        Skipped, ///< no request was sent because of the device's state
        Waiting, ///< for a further step of the work
        Succeeded,
        ToCome, ///< the running batch has not reached it yet
    };
    Q_ENUM(State)

    explicit BatchResultModel(QObject *parent = nullptr);

    [[nodiscard]] Batch *batch() const { return m_batch; }
    void setBatch(Batch *batch);

    /// Whether only devices that failed or were not done are shown.
    [[nodiscard]] bool onlyFailed() const { return m_onlyFailed; }
    void setOnlyFailed(bool only);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

Q_SIGNALS:
    void batchChanged();
    void onlyFailedChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    void reload();

    QPointer<Batch> m_batch; ///< not owned
    bool m_onlyFailed = false;
    QList<qsizetype> m_entryIndexes; ///< index in the batch's entries, by row
    QTimer m_reloading;
};
