#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

#include <QThreadPool>
#include <QVariantList>

/// Batches of the commands of a workbook, for QML: read() reads the lines of a workbook, run() sends the
/// commands of chosen lines and writes the results to these lines. There is one workbook at a time. It is
/// released at the end of its batch.
///
/// Lives on the main thread. Files are read and written on a separate thread.
class CgiWorkbooks : public QObject
{
    Q_OBJECT
public:
    /// `factory` and `batches` must outlive this object. The functions of `surroundings` are called on the
    /// threads of the batches; its watch is not used.
    CgiWorkbooks(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                 QObject *parent = nullptr);

    /// Waits for the file thread, and saves the results of a running workbook. Blocks until then.
    ~CgiWorkbooks() override;

    /// Reads a workbook on the file thread. `path` may be a "file:///" URL. Later emits wasRead(), or ended()
    /// with the reason why the workbook cannot be used. In both cases the workbook that was read before is
    /// released. While another workbook is read or runs, nothing is read, and ended() is emitted with the
    /// reason during this call.
    Q_INVOKABLE void read(const QString &path);

    /// Starts a batch that sends the commands of the chosen lines of the last read workbook. `lines` has
    /// values "name" of wasRead(); `title` is displayed as the name of the batch. The commands for one device
    /// are sent in their order. A line with a hindrance is not sent: its result is "Error:" and the
    /// hindrance. When the results are in the file, ended() is emitted with a message for the user, and the
    /// workbook is released. The batch cannot be retried.
    ///
    /// Returns the batch, which QML does not own. Returns null without a workbook, while a workbook runs or
    /// is read, and after Batches::refused() if the batch was not started. Also returns null if the file has
    /// been changed since it was read: then the workbook is released, and ended() is emitted with the reason
    /// during this call.
    Q_INVOKABLE Batch *run(const QString &title, const QStringList &lines);

Q_SIGNALS:
    /// Emitted after read() with the lines of the workbook, as entries for BatchPreview::setEntries(): maps
    /// with "name" (unique), "title", "ipport", "action" (the command) and "hindrance" (the reason why the
    /// command must not be sent, usually empty).
    void wasRead(const QVariantList &lines);

    /// A message in the user's language: at the end of a batch the numbers of succeeded, failed and not sent
    /// commands and the file with the results (or the reason why they cannot be saved), otherwise the reason
    /// why a workbook is not read or not run.
    void ended(const QString &text);

private:
    class Workbook;

    void takeRead(std::shared_ptr<Workbook> workbook, const QString &refusal);
    [[nodiscard]] QList<BatchDevice> linesOf(const Workbook &workbook, const QSet<QString> &requested) const;
    [[nodiscard]] DeviceStep lineStep(const BatchDevice &line) const;
    void takeLines(const QList<BatchOutcome> &outcomes);
    void finish();
    void reportEnd(const QString &text);

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const CgiSurroundings m_surroundings;
    QThreadPool m_files; ///< one thread
    /// Null when there is none. While it runs, only the file thread accesses its file; the destructor does
    /// so after the end of that thread.
    std::shared_ptr<Workbook> m_workbook;
    bool m_isRunning = false; ///< also until the results are in the file
    int m_work = 0;           ///< handle of reading or writing in the busy state; 0 for none
};
