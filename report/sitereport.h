// Makes the report of a site.
#pragma once

#include "device/batch/batch.h"
#include "report/visitchanges.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>
#include <QVariantMap>

#include <memory>

class Batches;
class CDeviceFactory;

/// The wanted report.
struct ReportOrder
{
    QString site;           ///< name of the site; must not be empty
    QString installer;      ///< may be empty
    QString folder;         ///< absolute path; created if it is missing
    QStringList identities; ///< names of the rows of the devices, in the order of the report
    bool wantsDocument = true;
    bool wantsWorkbook = true;
};

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
/// are written. A stopped batch writes no file. Lives on the main thread.
class SiteReport : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Batch *batch READ batch NOTIFY stateChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY stateChanged)
    Q_PROPERTY(bool writing READ isWriting NOTIFY stateChanged)
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
    /// report is made, or after Batches::refused().
    Batch *start(const ReportOrder &order);

    /// start() for QML with the keys of ReportKey. Returns whether a batch was started.
    Q_INVOKABLE bool begin(const QVariantMap &order);
    /// Stops the batch; no file is written. Has no effect while files are written.
    Q_INVOKABLE void stop();
    /// The names of all rows, those of the IPv4 list first. An IPv6 row is left out of the report if its
    /// device has reported the MAC of another row.
    Q_INVOKABLE [[nodiscard]] QStringList allDevices() const;

    /// The running batch; null if there is none.
    [[nodiscard]] Batch *batch() const { return m_batch; }
    [[nodiscard]] bool isWriting() const { return m_isWriting; }
    [[nodiscard]] bool isRunning() const { return m_batch || m_isWriting; }
    /// The contents of the latest report, from the end of its batch on. Empty after a stopped batch.
    [[nodiscard]] const SiteData &data() const { return m_data; }
    /// The folder of documents of the user.
    [[nodiscard]] static QString suggestedFolder();

Q_SIGNALS:
    void stateChanged(); ///< a batch has started or ended, or the writing of files has ended
    /// A report has ended. `paths` are the written files, the document first. `reason` is empty on success,
    /// otherwise why a file is missing; no further file is written then. Both are empty if the batch was
    /// stopped.
    void finished(const QStringList &paths, const QString &reason);

private:
    class Collection;

    [[nodiscard]] DeviceStep stepOf(const BatchDevice &device) const;
    void takeResults();
    [[nodiscard]] SiteData dataOf(const Batch &batch) const;
    /// `isAddressShared`: another device of the batch has the same address and port.
    [[nodiscard]] ReportDevice deviceOf(const Batch::Entry &entry, bool isAddressShared) const;
    void write();
    void end(const QStringList &paths, const QString &reason);

    CDeviceFactory &m_factory;
    Batches &m_batches;
    const QPointer<const VisitChanges> m_changes;
    QPointer<Batch> m_batch;
    ReportOrder m_order;
    SiteData m_data;
    std::shared_ptr<Collection> m_collection; ///< shared with the steps
    QThreadPool m_files;                      ///< one thread, which writes the files
    bool m_isWriting = false;
};
