#pragma once

#include "device/batch/batches.h"
#include "device/registry/deviceimport.h"

#include <QThreadPool>
#include <QVariantList>

/// Devices that are added to the list in batches, for the scene: those of a device list that was read from a
/// file, and those that the user names.
///
/// Lives on the scene's thread. Files are read on a thread of its own.
class AddingBatches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
public:
    /// `factory` and `batches` live longer than this.
    AddingBatches(CDeviceFactory &factory, Batches &batches, QObject *parent = nullptr);

    /// Waits for the file that is being read.
    ~AddingBatches() override;

    /// A list is being read.
    [[nodiscard]] bool isReading() const { return m_work != 0; }

    /// Reads a device list, and begins to log in to its devices as it is read. `path` may be a "file:///"
    /// address. importBegan() or importRefused() follows, unless the batches refuse it. Does nothing while a
    /// list is being read.
    Q_INVOKABLE void importList(const QString &title, const QString &path);

    /// The lines of an import, or of its retry, that brought no device: maps as importFailure() makes them.
    /// Of the last list that was read only.
    Q_INVOKABLE [[nodiscard]] QVariantList importFailures(Batch *batch) const;

    /// Adds devices: maps of "identity", by which tried() names it, "mode" (0 by address, 1 by P2P ID),
    /// "address", "port", "account" and "password". Returns the batch, or null when it does not begin. The
    /// scene does not own it.
    Q_INVOKABLE Batch *addDevices(const QString &title, const QVariantList &devices);

Q_SIGNALS:
    void readingChanged();
    void importBegan(Batch *batch);
    void importRefused(const QString &reason);

    /// What has come of devices of addDevices(), also in a retry: maps of "identity", "result" and "words" in
    /// the user's language.
    void tried(const QVariantList &results);

private:
    /// A list that was read, as a batch.
    struct List
    {
        QString refusal; ///< why there is none, in the user's language
        BatchPlan plan;
        QHash<QString, ImportPlace> places; ///< by the names of the lines
    };

    [[nodiscard]] List readList(const QString &title, const QString &path) const; ///< on any thread
    void takeList(List &list);
    void noteRows(const QList<BatchOutcome> &outcomes);
    /// Tells the pages of new rows at the end of a batch, whichever began it: it may be a retry.
    void noteEnd();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    QThreadPool m_readers;                ///< one thread
    int m_work = 0;                       ///< of the reading, in the busy state; 0 for none
    QTimer m_news;                        ///< runs from a new row until the pages are notified
    bool m_hasNewRows = false;            ///< since the end of the last batch
    QHash<QString, ImportPlace> m_places; ///< of the last list that was read, by the names of its lines
};
