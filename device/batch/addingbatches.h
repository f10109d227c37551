#pragma once

#include "device/batch/batches.h"
#include "device/registry/deviceimport.h"

#include <QThreadPool>
#include <QVariantList>

/// Adds devices to the device list in batches: devices of a list file, and devices that the user enters.
///
/// Lives on the main thread. Files are read on a separate thread.
class AddingBatches : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool reading READ isReading NOTIFY readingChanged)
public:
    /// `factory` and `batches` must outlive this object.
    AddingBatches(CDeviceFactory &factory, Batches &batches, QObject *parent = nullptr);

    /// Waits until the current file is read. importBegan() and importRefused() are not emitted then.
    ~AddingBatches() override;

    /// Whether a list file is being read.
    [[nodiscard]] bool isReading() const { return m_work != 0; }

    /// Reads a device list file on a separate thread and returns immediately. Then starts a batch with this
    /// title that logs in to the devices of the list and adds their rows. `path` is a path or a "file:///"
    /// URL. importBegan() or importRefused() follows. If the batch cannot start, such as while another one is
    /// running, Batches::refused() follows instead, and nothing is imported. Does nothing while a list is
    /// being read. `passphrase` is that of an encrypted list.
    Q_INVOKABLE void importList(const QString &title, const QString &path, const QString &passphrase = {});

    /// The lines without success of a batch of importBegan(), or of its retry, as maps made by
    /// importFailure(): "line", "address", "code" and "reason". The batch must be that of the latest list:
    /// the positions in earlier files are lost. Empty if `batch` is null.
    Q_INVOKABLE [[nodiscard]] QVariantList importFailures(Batch *batch) const;

    /// Starts a batch that logs in to these devices and adds their rows. `devices` are maps of "identity" (a
    /// text that tried() returns), "mode" (0 by address, 1 by P2P ID), "address" (or the P2P ID), "port"
    /// (int or its text, of the device itself), "account" and "password". A device by address whose address
    /// and port are listed gets LoginResult::AlreadyListed, without a request. Returns the batch, which
    /// Batches owns; null after Batches::refused().
    Q_INVOKABLE Batch *addDevices(const QString &title, const QVariantList &devices);

Q_SIGNALS:
    void readingChanged();
    /// The file is read, and the batch has started. Batches owns the batch.
    void importBegan(Batch *batch);
    /// The file cannot be imported, for this reason in the user's language. `mayAskAgain`: it is encrypted,
    /// and another passphrase may be the right one.
    void importRefused(const QString &reason, bool mayAskAgain);

    /// Results of devices of addDevices() or of its retry, in groups while the batch runs: maps of
    /// "identity", "result" (a LoginResult or another code of resultName()) and "message" (in the user's
    /// language).
    void tried(const QVariantList &results);

private:
    /// A list file as a batch.
    struct List
    {
        QString refusal; ///< why the file cannot be imported, in the user's language; empty on success
        bool isPassphraseRefused = false;
        BatchPlan plan;
        QHash<QString, ImportPosition> positions; ///< position in the file, by the name of the line
    };

    [[nodiscard]] List readList(const QString &title, const QString &path,
                                const QString &passphrase) const; ///< on any thread
    void takeList(List &list);
    /// Notifies pages of new rows at most once a second: they read the complete list then.
    void noteRows(const QList<BatchOutcome> &outcomes);
    /// Notifies pages of new rows at the end of any batch: a retry is started elsewhere.
    void noteEnd();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    QThreadPool m_readers;                      ///< one thread
    int m_work = 0;                             ///< id of the reading in BusyState; 0 while not reading
    QTimer m_notifyTimer;                       ///< delays the notification of pages after a new row
    bool m_hasNewRows = false;                  ///< since the end of the last batch
    QHash<QString, ImportPosition> m_positions; ///< of the latest list, by the name of the line
};
