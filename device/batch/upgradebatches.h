#pragma once

#include "device/batch/batches.h"

#include <QPointer>

/// Firmware upgrades as batches, for the scene: of devices of the list, and of those of a document.
///
/// Lives on the scene's thread.
class UpgradeBatches : public QObject
{
    Q_OBJECT
    /// The last one, of the list or of a document; null before the first.
    Q_PROPERTY(Batch *last READ last NOTIFY lastChanged)
public:
    /// `factory` and `batches` live longer than this. `atOnce` returns how many devices are upgraded at the
    /// same time.
    UpgradeBatches(CDeviceFactory &factory, Batches &batches, std::function<int()> atOnce,
                   QObject *parent = nullptr);

    [[nodiscard]] Batch *last() const { return m_batch; }

    /// Gives the devices of these rows a file. Returns a message for the user, in the user's language; empty
    /// when all of them can be upgraded with it.
    Q_INVOKABLE [[nodiscard]] QString chooseFile(const QStringList &identities, const QString &path);

    // Each returns the batch, or null when it does not begin. The scene does not own it.

    /// Upgrades the devices of these rows, each with the file of its row.
    Q_INVOKABLE Batch *start(const QString &title, const QStringList &identities);

    /// Upgrades devices of a document: those of the lines with these numbers. documentEnded() follows, also
    /// when the document is refused, and after a retry, whose results are written into it as well.
    Q_INVOKABLE Batch *startDocument(const QString &title, const QString &path, const QStringList &lines);

Q_SIGNALS:
    void lastChanged();

    /// Rows of the list have changed. Emitted a few times a second while devices are upgraded, and at the
    /// end.
    void rowsChanged(const QStringList &identities);

    /// The same for so many rows that the page does better to read the list.
    void listChanged();

    /// Of a batch of listed devices: how many were upgraded, failed, or were stopped before.
    void ended(int upgraded, int failed, int notDone);

    /// The results of the document are in its file. `text` is a message for the user.
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
    /// A device was not asked, since one at the same address had refused the account: its row says so, too.
    void noteRefusals(const QList<BatchOutcome> &outcomes);
    void noteProgress(int percent);
    void tellRows();
    void noteRoundEnd();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const std::function<int()> m_atOnce;
    QPointer<Batch> m_batch;        ///< the last one
    Source m_source = Source::List; ///< its
    bool m_isDocumentOpen = false;  ///< its results are to come
    QTimer m_news;                  ///< runs from a change of a row until rowsChanged()
};
