#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

#include <QThreadPool>
#include <QVariantList>

/// Batches of the commands of a workbook, for QML: the command of each line is sent, and the response is
/// written to the line.
///
/// Lives on the main thread. Files are read and written on a separate thread.
class CgiWorkbooks : public QObject
{
    Q_OBJECT
public:
    /// `factory` and `batches` must outlive this object. `surroundings` is used on any thread.
    CgiWorkbooks(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                 QObject *parent = nullptr);

    /// Saves the results of a running workbook.
    ~CgiWorkbooks() override;

    /// Reads a workbook. `path` may be a "file:///" URL. Emits wasRead(), or ended() with the reason why it
    /// cannot be used. It replaces a workbook that was read and not started, also if it cannot be used. While
    /// another one is read or runs, ended() is emitted during this call.
    Q_INVOKABLE void read(const QString &path);

    /// Sends the commands of the lines with these names in the last read workbook; the commands for one
    /// device are sent in their order. Returns the batch, or null when it does not start. QML does not own
    /// it. When the results are in the file, ended() is emitted with a message for the user. If the file has
    /// been changed since it was read, ended() is emitted during this call.
    Q_INVOKABLE Batch *run(const QString &title, const QStringList &lines);

Q_SIGNALS:
    /// Emitted with the lines of a workbook, in the form of BatchPreview::setEntries().
    void wasRead(const QVariantList &lines);

    /// Emitted at the end with the text of CGIConfigManage::batchCGIConfig(), or with the reason why a
    /// workbook is not read or not run.
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
    /// Null when there is none. While it runs, only the file thread accesses its file.
    std::shared_ptr<Workbook> m_workbook;
    bool m_isRunning = false; ///< also until the results are in the file
    int m_work = 0;           ///< handle of reading or writing in the busy state; 0 for none
};
