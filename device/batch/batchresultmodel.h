#pragma once

#include "device/batch/batch.h"
#include "device/models/dialogrows.h"

#include <QPointer>
#include <QTimer>

/// The devices of a batch as table rows, ordered by state (see State) and then as in the batch. Keys of a
/// row: "identity" (its index in the batch, as text; not the name of a device row), "device" (address and
/// port), "mac" (empty if unknown), "name" (name and model in one text), "result" (text in the user's
/// language; empty in the state ToCome), "time" of the result ("HH:mm:ss"; empty without one) and "state" (a
/// State). The rows are built again 250 ms after a result, and at the end of the batch. Without a batch, or
/// after its deletion, there are no rows. Lives on the main thread.
class BatchResultModel : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(Batch *batch READ batch WRITE setBatch NOTIFY batchChanged)
    Q_PROPERTY(bool onlyFailed READ onlyFailed WRITE setOnlyFailed NOTIFY onlyFailedChanged)
public:
    /// State of a device, in the order of the rows.
    enum State
    {
        Failed,  ///< a result that belongs to no other state
        NotDone, ///< the step ended without having done its work, or the batch ended before the device's turn
        Skipped, ///< no request was sent because of the device's state
        Waiting, ///< the first step of the work has succeeded; the user must start a further one
        Succeeded,
        ToCome, ///< the batch runs, and the device has no result yet
    };
    Q_ENUM(State)

    explicit BatchResultModel(QObject *parent = nullptr);

    [[nodiscard]] Batch *batch() const { return m_batch; }
    void setBatch(Batch *batch);

    /// Whether only devices in the states Failed and NotDone are shown.
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
