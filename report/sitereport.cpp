#include "report/sitereport.h"

#include "device/batch/batches.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "report/internal/reportfiles.h"
#include "report/reporttexts.h"
#include "report/sitefindings.h"
#include "sdk/threadpriority.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <mutex>
#include <utility>

namespace {

constexpr int imageQuality = 80;

/// Scales a large image file down in place. On failure the file is unchanged.
void limitImage(const QString &path)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() <= SiteReport::imageWidth)
        return;
    reader.setScaledSize(size.scaled(SiteReport::imageWidth, size.height(), Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (!image.isNull())
        image.save(path, "JPG", imageQuality);
}

/// Why the folder for temporary files cannot be used, in the user's language; empty if it can.
QString problemOf(const QTemporaryDir &folder)
{
    return folder.isValid() ? QString()
                            : ReportTexts::noTemporaryFolder(QDir::tempPath(), folder.errorString());
}

/// Whether a device has no outcome because the batch was stopped. A device that exceeded its time has a text.
bool isLeftOut(const Batch::Entry &entry)
{
    return entry.outcome.result == BatchReport::NotDone && entry.outcome.text.isEmpty();
}

} // namespace

/// The results of the steps, by the name of the device in the batch. Thread-safe.
class SiteReport::Collection
{
public:
    struct Result
    {
        bool isRead = false;
        DeviceInspection inspection;
        QList<ReportImage> images;
        QHash<int, QString> channelNames;
    };

    [[nodiscard]] QString newFolder()
    {
        const std::lock_guard lock(m_mutex);
        return m_folder.filePath(QString::number(++m_folders));
    }
    /// Why there is no folder for the images, in the user's language; empty if there is one.
    [[nodiscard]] QString problem() const { return problemOf(m_folder); }

    template<typename Change>
    void change(const QString &device, Change change)
    {
        const std::lock_guard lock(m_mutex);
        change(m_results[device]);
    }
    [[nodiscard]] Result resultOf(const QString &device) const
    {
        const std::lock_guard lock(m_mutex);
        return m_results.value(device);
    }

private:
    mutable std::mutex m_mutex;
    QTemporaryDir m_folder;
    int m_folders = 0;
    QHash<QString, Result> m_results;
};

SiteReport::SiteReport(CDeviceFactory &factory, Batches &batches, const VisitChanges *changes,
                       QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches), m_changes(changes)
{
    m_files.setMaxThreadCount(1);
}

SiteReport::~SiteReport()
{
    m_files.waitForDone();
}

QString SiteReport::suggestedFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString SiteReport::folderProblem(const QString &folder)
{
    const QString problem = problemOf(QTemporaryDir());
    return problem.isEmpty() ? reportFolderProblem(folder) : problem;
}

QStringList SiteReport::allDevices() const
{
    CDeviceBase &backEnd = *m_factory.backEnd(dhFamily);
    const QVariantList rows =
        backEnd.filterData(RowFilter::all, {}) + backEnd.filterDataIPV6(RowFilter::all, {});
    QStringList names;
    for (const QVariant &row : rows)
        names.append(rowName(row.toJsonObject()));
    return names;
}

bool SiteReport::begin(const QVariantMap &order)
{
    return start({.site = order.value(ReportKey::site).toString(),
                  .installer = order.value(ReportKey::installer).toString(),
                  .folder = order.value(ReportKey::folder).toString(),
                  .identities = order.value(ReportKey::identities).toStringList(),
                  .wantsDocument = order.value(ReportKey::document).toBool(),
                  .wantsWorkbook = order.value(ReportKey::workbook).toBool()}) != nullptr;
}

Batch *SiteReport::start(const ReportOrder &order)
{
    m_problem.clear();
    if (isRunning() || order.identities.isEmpty())
        return nullptr;
    m_isNewFolder = !QFileInfo::exists(order.folder);
    m_order = order;
    m_data = {};
    m_paths.clear();
    m_isCancelled = false;
    m_isPaused = false;
    m_collection = std::make_shared<Collection>();
    m_problem = m_collection->problem();
    if (m_problem.isEmpty())
        m_problem = reportFolderProblem(order.folder);
    Batch *batch = m_problem.isEmpty() ? m_batches.start(plan()) : nullptr;
    if (!batch) {
        m_collection.reset();
        removeNewFolder();
        return nullptr;
    }
    m_batch = batch;
    connect(batch, &Batch::changed, this, &SiteReport::notePause);
    connect(batch, &Batch::finished, this, &SiteReport::takeResults);
    Q_EMIT stateChanged();
    if (!batch->isRunning())
        takeResults();
    return batch;
}

BatchPlan SiteReport::plan()
{
    BatchPlan plan = {.family = dhFamily,
                      .title = ReportTexts::report(),
                      .work = QStringLiteral("report"),
                      .devices = batchDevices(m_factory, dhFamily, m_order.identities),
                      .policy = m_batches.usualPolicy(),
                      .accountOf = m_batches.rowAccounts(dhFamily),
                      .isByAddress = true,
                      .canBeRetried = false,
                      .marksFailed = false,
                      .changesDevices = false};
    plan.stepOf = [this](const BatchDevice &device) {
        return stepOf(device);
    };
    return plan;
}

void SiteReport::stop()
{
    m_isCancelled = true;
    if (m_batch)
        m_batch->stop();
}

bool SiteReport::writeAgain(const QString &folder)
{
    m_problem.clear();
    if (!canWriteAgain())
        return false;
    const bool isNewFolder = !QFileInfo::exists(folder);
    m_problem = folderProblem(folder);
    if (!m_problem.isEmpty())
        return false;
    m_order.folder = folder;
    m_isNewFolder = isNewFolder;
    m_isCancelled = false;
    write();
    return true;
}

void SiteReport::discard()
{
    if (!canWriteAgain())
        return;
    m_collection.reset(); // removes the images
    Q_EMIT stateChanged();
}

void SiteReport::notePause()
{
    // A stop ends the pause, but not the reason for the missing devices.
    if (m_batch && m_batch->isRunning() && !m_batch->isStopping())
        m_isPaused = m_batch->isPaused();
}

DeviceStep SiteReport::stepOf(const BatchDevice &device) const
{
    const std::shared_ptr<Collection> collection = m_collection;
    const QString name = device.name;
    CDeviceBase &backEnd = *m_factory.backEnd(dhFamily);
    const DeviceStep inspection = backEnd.inspectionStep(
        {.ipport = device.ipport, .inspected = [collection, name](const DeviceInspection &values) {
             collection->change(name, [&values](Collection::Result &result) {
                 result.isRead = true;
                 result.inspection = values;
             });
         }});
    const DeviceStep images = backEnd.imageStep(
        {.ipport = device.ipport,
         .folder = collection->newFolder(),
         .mostChannels = mostImages,
         .found =
             [collection, name](const QVariantList &channels, int channelCount) {
                 collection->change(name, [&](Collection::Result &result) {
                     for (const QVariant &value : channels) {
                         const QVariantMap channel = value.toMap();
                         if (channelCount > 1)
                             result.channelNames.insert(channel.value(ChannelKey::channel).toInt(),
                                                        channel.value(ChannelKey::name).toString());
                     }
                 });
             },
         .taken =
             [collection, name](int channel, const QString &path, const QString &message) {
                 if (!path.isEmpty())
                     limitImage(path);
                 collection->change(name, [&](Collection::Result &result) {
                     result.images.append({.channel = channel,
                                           .name = result.channelNames.value(channel),
                                           .path = path,
                                           .message = path.isEmpty() ? message : QString()});
                 });
             }});
    return [inspection, images](const StepControl &control) {
        StepOutcome outcome = inspection(control);
        if (outcome.result != resultCode(LoginResult::Success))
            return outcome;
        control.noteProgress();
        const StepOutcome ofImages = images(control);
        // Devices without video are complete. A stop leaves the report incomplete.
        return control.isStopped() ? ofImages : outcome;
    };
}

void SiteReport::takeResults()
{
    if (!m_batch || m_batch->isRunning())
        return;
    const Batch &batch = *m_batch;
    const bool isStopped =
        !m_isPaused && std::any_of(batch.entries().cbegin(), batch.entries().cend(), &isLeftOut);
    if (m_isCancelled || isStopped) {
        end({});
        return;
    }
    m_data = dataOf(batch);
    write();
}

ReportDevice SiteReport::deviceOf(const Batch::Entry &entry, bool isAddressShared) const
{
    const QJsonObject row = m_factory.backEnd(dhFamily)->deviceRow(entry.device.identity);
    const auto text = [&row](QLatin1StringView key) {
        return row.value(key).toString();
    };
    Collection::Result result = m_collection->resultOf(entry.device.name);
    const QString mac = text(DeviceRowKey::mac);
    const QString readMac = result.inspection.detail.value(DeviceRowKey::mac).toString();
    // Another device with the same address has responded.
    if (isAddressShared && !mac.isEmpty() && !readMac.isEmpty() &&
        mac.compare(readMac, Qt::CaseInsensitive) != 0)
        result = {};
    const QVariantMap &read = result.inspection.detail;
    const auto reported = [&](QLatin1StringView key) {
        return read.contains(key) ? read.value(key).toString() : text(key);
    };
    ReportDevice device = {.identity = entry.device.identity,
                           .ipport = row.isEmpty() ? entry.device.ipport : text(DeviceRowKey::ipport),
                           .address = rowAddress(row),
                           .mac = reported(DeviceRowKey::mac),
                           .name = text(DeviceRowKey::name),
                           .type = text(DeviceRowKey::type),
                           .model = reported(DeviceRowKey::model),
                           .version = reported(DeviceRowKey::vision),
                           .serial = read.value(DeviceDetailKey::serial).toString(),
                           .isInitialised = row.value(DeviceRowKey::state).toBool(true),
                           .isLost = row.value(DeviceRowKey::lost).toBool(),
                           .outcome = entry.outcome,
                           .isRead = result.isRead,
                           .inspection = result.inspection,
                           .images = result.images,
                           .channelCount = std::max(result.inspection.channelCount, 0)};
    if (isLeftOut(entry))
        device.outcome.text = ReportTexts::refusalsInARow(m_batches.usualPolicy().wrongPasswordsInARow);
    if (device.serial.isEmpty())
        device.serial =
            m_factory.getDeviceDetail(dhFamily, device.identity).value(DeviceDetailKey::serial).toString();
    if (m_changes)
        device.imagesBefore = m_changes->imagesBefore()->of(device.identity);
    return device;
}

SiteData SiteReport::dataOf(const Batch &batch) const
{
    SiteData data = {
        .site = m_order.site, .installer = m_order.installer, .time = QDateTime::currentDateTime()};
    QHash<QString, int> devicesAt; // by address and port
    for (const Batch::Entry &entry : batch.entries())
        ++devicesAt[entry.device.ipport];
    QSet<QString> macs;
    for (const Batch::Entry &entry : batch.entries()) {
        const ReportDevice device = deviceOf(entry, devicesAt.value(entry.device.ipport) > 1);
        // The IPv4 and the IPv6 row of one device: rows of the IPv6 list have no MAC.
        const bool isSecondRow =
            device.address.startsWith(u'[') && !device.mac.isEmpty() && macs.contains(device.mac.toLower());
        if (isSecondRow)
            continue;
        macs.insert(device.mac.toLower());
        data.devices.append(device);
    }
    data.findings = siteFindings(data.devices);
    if (m_changes) {
        data.changes = m_changes->changes();
        data.droppedChanges = m_changes->droppedChanges();
    }
    return data;
}

void SiteReport::write()
{
    m_batch = nullptr;
    m_isWriting = true;
    Q_EMIT stateChanged();
    const int work = m_factory.busyState()->begin(ReportTexts::report(), BusyState::Program);
    // The collection keeps the images until the files are written.
    m_files.start([this, data = m_data, work, order = m_order, kept = m_collection] {
        sdk::giveWayToWindow();
        const ReportFiles files = writeReportFiles(data, order, m_isCancelled);
        QMetaObject::invokeMethod(
            this,
            [this, work, files] {
                m_factory.busyState()->end(work);
                m_paths += files.paths;
                m_order.wantsDocument = files.lacksDocument;
                m_order.wantsWorkbook = files.lacksWorkbook;
                end(files.failures);
            },
            Qt::QueuedConnection);
    });
}

void SiteReport::end(const QStringList &failures)
{
    m_batch = nullptr;
    m_isWriting = false;
    if (failures.isEmpty())
        m_collection.reset(); // removes the images
    removeNewFolder();
    Q_EMIT stateChanged();
    Q_EMIT finished(m_paths, failures.join(u'\n'));
}

void SiteReport::removeNewFolder()
{
    if (m_isNewFolder)
        QDir().rmdir(m_order.folder); // fails if the folder has a file
    m_isNewFolder = false;
}
