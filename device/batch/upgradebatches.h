#pragma once

#include "device/batch/batches.h"

#include <QPointer>

/// Firmware upgrades as batches: of devices in the list, and of the lines of an upgrade document (a workbook
/// with devices and firmware files, to which the results are written).
///
/// Lives on the main thread.
class UpgradeBatches : public QObject
{
    Q_OBJECT
    /// The latest upgrade batch; null before the first, and after its deletion by Batches.
    Q_PROPERTY(Batch *last READ last NOTIFY lastChanged)
public:
    /// `factory` and `batches` must outlive this object. `maximumParallel` returns the maximum number of
    /// upgrades in parallel.
    UpgradeBatches(CDeviceFactory &factory, Batches &batches, std::function<int()> maximumParallel,
                   QObject *parent = nullptr);

    [[nodiscard]] Batch *last() const { return m_batch; }

    /// Sets the firmware file of these rows (names of rows), see CDeviceBase::setUpgradeFiles(). `path` is a
    /// path or "file:///" URL. Returns an error message in the user's language if a device cannot be upgraded
    /// with the file, otherwise an empty string. The file is set in either case, and the row shows the
    /// reason, except for a device that is being upgraded.
    Q_INVOKABLE [[nodiscard]] QString chooseFile(const QStringList &identities, const QString &path);

    // Each function below returns the batch, or null after Batches::refused() if it was not started. QML does
    // not own the batch. `title` is the name of the work for the user.

    /// Upgrades the devices of these rows (names of rows), each with the file in its row. A device that is
    /// not initialised is skipped. ended() follows, also after a retry.
    Q_INVOKABLE Batch *start(const QString &title, const QStringList &identities);

    /// Upgrades the devices of the lines of the document at `path`. `lines` are the line numbers in the file,
    /// as texts. documentEnded() follows, also if the document is refused, and again after a retry, whose
    /// results are written to the document as well. It does not follow if another batch is running.
    Q_INVOKABLE Batch *startDocument(const QString &title, const QString &path, const QStringList &lines);

Q_SIGNALS:
    void lastChanged(); ///< an upgrade batch has started, also as a retry

    /// Upgrades have changed these rows of the list. Emitted at the start of a batch, up to four times a
    /// second while devices are upgraded, and at the end.
    void rowsChanged(const QStringList &identities);

    /// Emitted instead of rowsChanged() if more than 500 rows have changed: reading the complete list is
    /// faster.
    void listChanged();

    /// A batch of start() has ended; the numbers of devices by result. Skipped devices are not counted.
    void ended(int upgraded, int failed, int notDone);

    /// The upgrades of a document have ended. `text` is a message for the user: CDeviceBase's
    /// upgradeDocumentResult(), which also states whether the results were written to the file. `hasSuccess`:
    /// at least one device was upgraded.
    void documentEnded(const QString &text, bool hasSuccess);

private:
    enum class Source
    {
        List,
        Document,
    };

    [[nodiscard]] BatchPlan usualPlan(const QString &title);
    Batch *begin(BatchPlan plan, Source source);
    void follow(Batch *batch, Source source);
    /// Writes a refusal to the rows of devices that got no request because another row with the same address
    /// was refused.
    void noteRefusals(const QList<BatchOutcome> &outcomes);
    void noteProgress(int percent);
    void notifyRows();
    void noteRoundEnd();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const std::function<int()> m_maximumParallel;
    QPointer<Batch> m_batch;        ///< the latest batch
    Source m_source = Source::List; ///< of m_batch
    bool m_isDocumentOpen = false;  ///< documentEnded() is pending
    QTimer m_notifyTimer;           ///< delays rowsChanged() after a change
};
