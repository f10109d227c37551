#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

#include <QThreadPool>
#include <QVariantList>

/// Workbooks of commands as batches, for the scene: each line has its command sent and gets the answer.
///
/// Lives on the scene's thread. Files are read and written on a thread of its own.
class CgiWorkbooks : public QObject
{
    Q_OBJECT
public:
    /// `factory` and `batches` live longer than this. `surroundings` are for any thread.
    CgiWorkbooks(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                 QObject *parent = nullptr);

    /// Keeps the results of a workbook that runs.
    ~CgiWorkbooks() override;

    /// Reads a workbook. `path` may be a "file:///" address. wasRead() follows, or ended() with the reason
    /// why it cannot be used. It takes the place of one that was read and not begun.
    Q_INVOKABLE void read(const QString &path);

    /// Sends the commands of the workbook that was read, of the lines with these names; those for one device
    /// in their order. Returns the batch, or null when it does not begin. The scene does not own it. When the
    /// results are in the file, ended() follows with a message for the user.
    Q_INVOKABLE Batch *run(const QString &title, const QStringList &lines);

Q_SIGNALS:
    /// What the lines ask for, as BatchPreview::setEntries() takes it.
    void wasRead(const QVariantList &lines);

    /// As CGIConfigManage::batchCGIConfig() returns it.
    void ended(const QString &text);

private:
    class Workbook;

    void takeRead(std::shared_ptr<Workbook> workbook, const QString &refusal);
    [[nodiscard]] QList<BatchDevice> linesOf(const Workbook &workbook, const QSet<QString> &wanted) const;
    [[nodiscard]] DeviceStep lineStep(const BatchDevice &line) const;
    void takeLines(const QList<BatchOutcome> &outcomes);
    void finish();
    void tellEnd(const QString &text);

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const CgiSurroundings m_surroundings;
    QThreadPool m_files; ///< one thread
    /// Null when there is none. While it runs, its file belongs to the thread of the files.
    std::shared_ptr<Workbook> m_workbook;
    bool m_isRunning = false; ///< also until the results are in the file
    int m_work = 0;           ///< reading or writing, in the busy state; 0 for none
};
