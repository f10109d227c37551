#pragma once

#include "device/batch/batch.h"
#include "device/models/dialogrows.h"

#include <QPointer>
#include <QTimer>

/// The devices of a batch for a table, by their states and in the order of the batch. Keys of a row: "device"
/// (its address and port), "mac" (empty where it has none), "name" (and model), "result" in words, "time" and
/// "state". While the batch runs the rows follow it several times a second. Lives on the scene's thread.
class BatchResultModel : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(Batch *batch READ batch WRITE setBatch NOTIFY batchChanged)
    Q_PROPERTY(bool onlyFailed READ onlyFailed WRITE setOnlyFailed NOTIFY onlyFailedChanged)
public:
    enum State
    {
        Failed,
        NotDone,
        Skipped, ///< because of its state
        Waiting, ///< for the next step
        Succeeded,
        ToCome, ///< the running batch has not come to it yet
    };
    Q_ENUM(State)

    explicit BatchResultModel(QObject *parent = nullptr);

    [[nodiscard]] Batch *batch() const { return m_batch; }
    void setBatch(Batch *batch);

    /// Whether the devices that succeeded, wait or were skipped are left out.
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
    QList<qsizetype> m_places; ///< of the shown rows, in the batch's entries
    QTimer m_reloading;
};
