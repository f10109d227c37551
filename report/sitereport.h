// Makes the report of a site.
#pragma once

#include "device/batch/batch.h"
#include "report/reportorder.h"
#include "report/visitchanges.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <QVariantMap>

#include <atomic>
#include <memory>

class Batches;
struct BatchPlan;
class CDeviceFactory;

/// Keys of the map of SiteReport::begin().
namespace ReportKey {
inline constexpr QLatin1StringView site("site");
inline constexpr QLatin1StringView installer("installer");
inline constexpr QLatin1StringView folder("folder");
inline constexpr QLatin1StringView identities("identities"); ///< list of strings
inline constexpr QLatin1StringView document("document");     ///< bool: the PDF file
inline constexpr QLatin1StringView workbook("workbook");     ///< bool
} // namespace ReportKey

/// Makes reports, one at a time: a batch reads each device and takes its images, then a separate thread
/// writes the files "<site>-<date>-<time>.pdf" and ".xlsx". Images are in a temporary folder until the files
/// are written. A report that is stopped by stop() has no file. A batch that is stopped by Batch::stop() has
/// no report either if devices are left out, unless it was paused since devices have refused their accounts:
/// the report then states the reason for the devices that were not read. Lives on the main thread.
class SiteReport : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Batch *batch READ batch NOTIFY stateChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY stateChanged)
    Q_PROPERTY(bool writing READ isWriting NOTIFY stateChanged)
    Q_PROPERTY(bool canWriteAgain READ canWriteAgain NOTIFY stateChanged)
    Q_PROPERTY(QString suggestedFolder READ suggestedFolder CONSTANT)
public:
    /// Images of a device that are part of a report; those of further channels are left out.
    static constexpr int mostImages = 4;
    /// Width in pixels of the images. Larger ones are scaled down when they are taken.
    static constexpr int imageWidth = 640;

    /// The objects must outlive this object. `changes` may be null: the report then has no changes.
    SiteReport(CDeviceFactory &factory, Batches &batches, const VisitChanges *changes,
               QObject *parent = nullptr);
    /// Waits until the files of a report are written.
    ~SiteReport() override;

    /// Starts a report. Returns its batch, or null if nothing was started: without a device, while another
    /// report is made, after Batches::refused(), or because of problem().
    Batch *start(const ReportOrder &order);

    /// start() for QML with the keys of ReportKey. Returns whether a batch was started.
    Q_INVOKABLE bool begin(const QVariantMap &order);
    /// Stops the report: the batch, or the writing after the current file. No file is left, except those that
    /// were written before writeAgain(). No effect once all files are complete.
    Q_INVOKABLE void stop();
    /// Writes the missing files of a report to another folder, without reading the devices again. Returns
    /// whether writing was started; finished() follows. See canWriteAgain() and problem().
    Q_INVOKABLE bool writeAgain(const QString &folder);
    /// Removes the images of a report with missing files. They cannot be written again afterwards.
    Q_INVOKABLE void discard();
    /// Why the last start(), begin() or writeAgain() did not start: the folder of the report, or that for
    /// temporary files, cannot be used. In the user's language; empty for another reason.
    Q_INVOKABLE [[nodiscard]] QString problem() const { return m_problem; }
    /// The names of all rows, those of the IPv4 list first. An IPv6 row is left out of the report if its
    /// device has reported the MAC of another row.
    Q_INVOKABLE [[nodiscard]] QStringList allDevices() const;

    /// The running batch; null if there is none.
    [[nodiscard]] Batch *batch() const { return m_batch; }
    [[nodiscard]] bool isWriting() const { return m_isWriting; }
    [[nodiscard]] bool isRunning() const { return m_batch || m_isWriting; }
    /// Whether files of the latest report are missing and its images still exist.
    [[nodiscard]] bool canWriteAgain() const { return m_collection && !isRunning(); }
    /// The contents of the latest report, from the end of its batch on. Empty after a stopped batch.
    [[nodiscard]] const SiteData &data() const { return m_data; }
    /// The folder of documents of the user.
    [[nodiscard]] static QString suggestedFolder();
    /// Why no report can be written to a folder, in the user's language: the folder, or that for temporary
    /// files, cannot be used. Empty if both can. Creates the folder if it is missing.
    [[nodiscard]] static QString folderProblem(const QString &folder);

Q_SIGNALS:
    void stateChanged(); ///< a batch or the writing of files has started or ended, or discard() was called
    /// A report has ended. `paths` are its written files, also those of earlier folders. `reason` is empty on
    /// success, otherwise it has a line for each missing file. If the report was stopped, `reason` is empty
    /// and `paths` has only files that were written before writeAgain().
    void finished(const QStringList &paths, const QString &reason);

private:
    class Collection;

    [[nodiscard]] BatchPlan plan();
    [[nodiscard]] DeviceStep stepOf(const BatchDevice &device) const;
    void notePause();
    void takeResults();
    [[nodiscard]] SiteData dataOf(const Batch &batch) const;
    /// `isAddressShared`: another device of the batch has the same address and port.
    [[nodiscard]] ReportDevice deviceOf(const Batch::Entry &entry, bool isAddressShared) const;
    void write();
    void end(const QStringList &failures);
    /// Removes the folder of a report without a file if the report has created it.
    void removeNewFolder();

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const QPointer<const VisitChanges> m_changes;
    QPointer<Batch> m_batch;
    ReportOrder m_order;
    SiteData m_data;
    QStringList m_paths; ///< of the written files
    QString m_problem;
    std::shared_ptr<Collection> m_collection; ///< shared with the steps
    bool m_isNewFolder = false;               ///< the report has created its folder
    bool m_isPaused = false;                  ///< the batch is paused, or was stopped while it was paused
    bool m_isWriting = false;
    std::atomic<bool> m_isCancelled = false; ///< read by the thread of `m_files`
    QThreadPool m_files;                     ///< one thread, which writes the files
};
