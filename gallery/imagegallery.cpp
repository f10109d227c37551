#include "gallery/imagegallery.h"

#include "device/batch/batches.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"
#include "files/applicationfolders.h"
#include "files/filereplacement.h"
#include "sdk/threadpriority.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <mutex>
#include <utility>

namespace {

/// The folder of a device's snapshots, by its address.
QString snapshotFolder(const QString &ipport)
{
    static const QRegularExpression odd(QStringLiteral("[^0-9A-Za-z._-]+"));
    QString name = ipport;
    return name.replace(odd, QStringLiteral("_"));
}

QString nameOfDevice(const QVariantMap &row)
{
    for (const QLatin1StringView key : {DeviceRowKey::name, DeviceRowKey::model}) {
        QString text = row.value(key).toString().trimmed();
        if (!text.isEmpty())
            return text;
    }
    return row.value(DeviceRowKey::ipport).toString();
}

} // namespace

/// Passes updates of steps to the main thread while the gallery exists.
class ImageGallery::Mailbox
{
public:
    explicit Mailbox(ImageGallery *receiver) : m_receiver(receiver) {}

    /// Runs `update` on the main thread if batch `round` is still the latest one. Any thread.
    void post(int round, const std::function<void(ImageGallery &gallery)> &update)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_receiver)
            return;
        QMetaObject::invokeMethod(
            m_receiver,
            [receiver = m_receiver, round, update] {
                if (receiver->m_round == round)
                    update(*receiver);
            },
            Qt::QueuedConnection);
    }

    void close()
    {
        const std::lock_guard lock(m_mutex);
        m_receiver = nullptr;
    }

private:
    std::mutex m_mutex;
    ImageGallery *m_receiver;
};

ImageGallery::ImageGallery(QObject *parent)
    : QAbstractListModel(parent), m_mailbox(std::make_shared<Mailbox>(this))
{
    m_files.setMaxThreadCount(1);
}

ImageGallery::~ImageGallery()
{
    m_mailbox->close();
    stop();
    m_files.waitForDone();
}

CDeviceFactory *ImageGallery::deviceFactory() const
{
    return m_deviceFactory;
}

void ImageGallery::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
}

Batches *ImageGallery::batches() const
{
    return m_batches;
}

void ImageGallery::setBatches(Batches *batches)
{
    if (m_batches == batches)
        return;
    m_batches = batches;
    Q_EMIT batchesChanged();
}

int ImageGallery::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_cells.size());
}

QHash<int, QByteArray> ImageGallery::roleNames() const
{
    return {{IpportRole, "ipport"},   {DeviceRole, "device"}, {ChannelRole, "channel"},
            {NameRole, "name"},       {StateRole, "stage"},   {ImageRole, "image"},
            {MessageRole, "message"}, {TimeRole, "takenAt"},  {NoteRole, "note"}};
}

QVariant ImageGallery::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Cell &cell = m_cells.at(index.row());
    switch (role) {
    case IpportRole:
        return cell.ipport;
    case DeviceRole:
        return cell.device;
    case ChannelRole:
        return cell.channel;
    case NameRole:
        return cell.name;
    case StateRole:
        return cell.state;
    case ImageRole:
        return cell.file.isEmpty() ? QString() : QUrl::fromLocalFile(cell.file).toString();
    case MessageRole:
        return cell.message;
    case TimeRole:
        return cell.time.isValid() ? QLocale().toString(cell.time.time(), QStringLiteral("HH:mm:ss"))
                                   : QString();
    case NoteRole:
        return cell.note;
    default:
        return {};
    }
}

QVariantMap ImageGallery::get(int row) const
{
    QVariantMap values;
    if (row < 0 || row >= m_cells.size())
        return values;
    const QHash<int, QByteArray> names = roleNames();
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        values.insert(QString::fromLatin1(name.value()), data(index(row), name.key()));
    return values;
}

QVariantList ImageGallery::devices() const
{
    QVariantList devices;
    QString last;
    for (const Cell &cell : m_cells) {
        if (cell.identity == last)
            continue;
        last = cell.identity;
        devices.append(QVariantMap{{DeviceRowKey::ipport, cell.ipport}, {DeviceRowKey::name, cell.device}});
    }
    return devices;
}

bool ImageGallery::show(const QVariantList &rows)
{
    clear();
    QStringList identities;
    QSet<QString> known;
    beginResetModel();
    for (const QVariant &value : rows) {
        const QVariantMap row = value.toMap();
        const QString identity = row.value(DeviceRowKey::identity).toString();
        if (identity.isEmpty() || known.contains(identity))
            continue;
        known.insert(identity);
        if (identities.size() == maximumDevices) {
            ++m_leftOut;
            continue;
        }
        identities.append(identity);
        m_cells.append({.identity = identity,
                        .ipport = row.value(DeviceRowKey::ipport).toString(),
                        .device = nameOfDevice(row)});
    }
    m_deviceCount = static_cast<int>(identities.size());
    endResetModel();
    count();
    return fetchAll();
}

void ImageGallery::readDevices()
{
    if (!m_deviceFactory)
        return;
    for (int row = 0; row < rowCount(); ++row) {
        Cell &cell = m_cells[row];
        const QJsonObject device = m_deviceFactory->backEnd(dhFamily)->deviceRow(cell.identity);
        if (device.isEmpty())
            continue;
        const QString name = nameOfDevice(device.toVariantMap());
        const QString ipport = device.value(DeviceRowKey::ipport).toString();
        if (cell.device == name && cell.ipport == ipport)
            continue;
        cell.device = name;
        cell.ipport = ipport;
        Q_EMIT dataChanged(index(row), index(row));
    }
}

void ImageGallery::renameChannel(const QString &ipport, int channel, const QString &name)
{
    for (int row = 0; row < rowCount(); ++row) {
        Cell &cell = m_cells[row];
        if (cell.ipport != ipport || cell.channel != channel || cellsOf(cell.identity).count < 2)
            continue; // the only channel of a device has no name of its own here
        cell.name = name;
        Q_EMIT dataChanged(index(row), index(row), {NameRole});
    }
}

bool ImageGallery::fetchAll()
{
    QStringList identities;
    for (const Cell &cell : std::as_const(m_cells)) {
        if (identities.isEmpty() || identities.constLast() != cell.identity)
            identities.append(cell.identity);
    }
    return start(identities, -1);
}

bool ImageGallery::fetch(int row)
{
    if (row < 0 || row >= m_cells.size())
        return false;
    const Cell &cell = m_cells.at(row);
    // Without a name, the channels of the device are unknown, or it has only one.
    const bool fetchesAll = cell.name.isEmpty();
    return start({cell.identity}, fetchesAll ? -1 : cell.channel);
}

bool ImageGallery::start(const QStringList &identities, int onlyChannel)
{
    if (!m_deviceFactory || !m_batches || m_batch || identities.isEmpty())
        return false;
    if (!m_folder)
        m_folder = std::make_shared<QTemporaryDir>();
    const int round = m_round + 1;
    BatchPlan plan = {.family = dhFamily,
                      .title = tr("获取图像"),
                      .work = QStringLiteral("images"),
                      .devices = batchDevices(*m_deviceFactory, dhFamily, identities),
                      .policy = m_batches->usualPolicy(),
                      .isByAddress = true,
                      .canBeRetried = false,
                      .marksFailed = false,
                      .changesDevices = false};
    for (BatchDevice &device : plan.devices) {
        if (device.ipport == device.name) // its row has been removed from the list
            device.ipport = m_cells.value(cellsOf(device.name).first).ipport;
    }
    plan.stepOf = [this, onlyChannel](const BatchDevice &device) {
        return stepOf(device, onlyChannel, m_folder->filePath(QString::number(m_round)));
    };
    plan.takeOutcomes = [mailbox = m_mailbox, round](const QList<BatchOutcome> &outcomes) {
        // Posted after the earlier updates of the steps.
        mailbox->post(round, [outcomes](ImageGallery &gallery) {
            for (const BatchOutcome &outcome : outcomes)
                gallery.finish(outcome.device.name, outcome.outcome);
        });
    };
    const QSet<QString> wanted(identities.cbegin(), identities.cend());
    const int roundBefore = std::exchange(m_round, round);
    Batch *batch = m_batches->start(std::move(plan));
    if (!batch) {
        m_round = roundBefore; // updates of the previous batch may still be queued
        return false;
    }
    for (Cell &cell : m_cells) {
        if (wanted.contains(cell.identity) && (onlyChannel < 0 || cell.channel == onlyChannel))
            cell.state = Waiting;
    }
    noteChanged(0, static_cast<int>(m_cells.size()) - 1);
    m_batch = batch;
    connect(batch, &Batch::finished, this, &ImageGallery::end);
    Q_EMIT batchChanged();
    if (!batch->isRunning())
        end();
    return true;
}

DeviceStep ImageGallery::stepOf(const BatchDevice &device, int onlyChannel, const QString &folder) const
{
    const int round = m_round;
    const auto post = [mailbox = m_mailbox, round](const std::function<void(ImageGallery &)> &update) {
        mailbox->post(round, update);
    };
    const QString identity = device.name;
    const DeviceStep step = m_deviceFactory->backEnd(dhFamily)->imageStep(
        {.ipport = device.ipport,
         .folder = folder + QLatin1Char('/') + snapshotFolder(identity),
         .onlyChannel = onlyChannel,
         .found =
             [post, identity](const QVariantList &channels, int channelCount) {
                 post([=](ImageGallery &gallery) { gallery.setChannels(identity, channels, channelCount); });
             },
         .taken =
             [post, identity](int channel, const QString &path, const QString &message) {
                 post([=](ImageGallery &gallery) { gallery.take(identity, channel, path, message); });
             }});
    return [step, post, identity, kept = m_folder](const StepControl &control) {
        post([identity](ImageGallery &gallery) { gallery.noteBegun(identity); });
        return step ? step(control)
                    : StepOutcome{.result = resultCode(LoginResult::NotSupported), .text = {}};
    };
}

void ImageGallery::end()
{
    if (!m_batch || m_batch->isRunning())
        return;
    m_batch = nullptr;
    Q_EMIT batchChanged();
}

void ImageGallery::stop()
{
    if (m_batch)
        m_batch->stop();
}

void ImageGallery::clear()
{
    stop();
    if (m_batch) {
        disconnect(m_batch, nullptr, this, nullptr);
        m_batch = nullptr;
        Q_EMIT batchChanged();
    }
    ++m_round;
    beginResetModel();
    m_cells.clear();
    m_deviceCount = 0;
    m_leftOut = 0;
    endResetModel();
    m_folder.reset();
    count();
}

ImageGallery::Range ImageGallery::cellsOf(const QString &identity) const
{
    const auto isOther = [&identity](const Cell &cell) {
        return cell.identity != identity;
    };
    const auto first = std::find_if_not(m_cells.cbegin(), m_cells.cend(), isOther);
    const auto last = std::find_if(first, m_cells.cend(), isOther);
    return {.first = static_cast<int>(first - m_cells.cbegin()), .count = static_cast<int>(last - first)};
}

void ImageGallery::noteBegun(const QString &identity)
{
    setFetching(cellsOf(identity));
}

void ImageGallery::setFetching(const Range &cells)
{
    for (int row = cells.first; row < cells.first + cells.count; ++row) {
        if (m_cells.at(row).state == Fetching)
            return;
        if (m_cells.at(row).state == Waiting) {
            m_cells[row].state = Fetching;
            noteChanged(row, row);
            return;
        }
    }
}

void ImageGallery::setChannels(const QString &identity, const QVariantList &channels, int channelCount)
{
    const Range before = cellsOf(identity);
    const int wanted = static_cast<int>(channels.size());
    if (before.count == 0 || wanted == 0)
        return;
    if (wanted > before.count) {
        const int end = before.first + before.count;
        beginInsertRows({}, end, before.first + wanted - 1);
        for (int row = end; row < before.first + wanted; ++row) {
            Cell cell = {.identity = identity,
                         .ipport = m_cells.at(before.first).ipport,
                         .device = m_cells.at(before.first).device};
            cell.channel = channels.at(row - before.first).toMap().value(QStringLiteral("channel")).toInt();
            m_cells.insert(row, cell);
        }
        endInsertRows();
    } else if (wanted < before.count) {
        beginRemoveRows({}, before.first + wanted, before.first + before.count - 1);
        m_cells.remove(before.first + wanted, before.count - wanted);
        endRemoveRows();
    }
    for (int position = 0; position < wanted; ++position) {
        Cell &cell = m_cells[before.first + position];
        const QVariantMap channel = channels.at(position).toMap();
        cell.channel = channel.value(QStringLiteral("channel")).toInt();
        cell.name = channelCount > 1 ? channel.value(DeviceRowKey::name).toString() : QString();
        cell.note.clear();
    }
    if (channelCount > wanted)
        m_cells[before.first + wanted - 1].note =
            tr("共 %1 个通道，仅显示前 %2 个").arg(channelCount).arg(wanted);
    noteChanged(before.first, before.first + wanted - 1);
    setFetching({.first = before.first, .count = wanted});
}

void ImageGallery::take(const QString &identity, int channel, const QString &file, const QString &message)
{
    const Range cells = cellsOf(identity);
    for (int row = cells.first; row < cells.first + cells.count; ++row) {
        Cell &cell = m_cells[row];
        if (cell.channel != channel)
            continue;
        if (!cell.file.isEmpty() && cell.file != file)
            QFile::remove(cell.file);
        cell.file = file;
        cell.state = file.isEmpty() ? Failed : Taken;
        cell.message = message;
        cell.time = file.isEmpty() ? QDateTime() : QDateTime::currentDateTime();
        noteChanged(row, row);
        break;
    }
    setFetching(cells);
}

void ImageGallery::finish(const QString &identity, const StepOutcome &outcome)
{
    const Range cells = cellsOf(identity);
    for (int row = cells.first; row < cells.first + cells.count; ++row) {
        Cell &cell = m_cells[row];
        if (cell.state != Waiting && cell.state != Fetching)
            continue;
        if (outcome.result == BatchReport::NotDone && !cell.file.isEmpty()) {
            cell.state = Taken; // no other image has been requested
            noteChanged(row, row);
            continue;
        }
        cell.state = BatchReport::isSkipped(outcome.result) ? Skipped : Failed;
        cell.message = outcomeText(outcome);
        if (!cell.file.isEmpty())
            QFile::remove(std::exchange(cell.file, QString()));
        cell.time = QDateTime();
        noteChanged(row, row);
    }
}

void ImageGallery::noteChanged(int first, int last)
{
    if (first > last)
        return;
    Q_EMIT dataChanged(index(first), index(last));
    count();
}

void ImageGallery::count()
{
    m_images = static_cast<int>(std::count_if(m_cells.cbegin(), m_cells.cend(),
                                              [](const Cell &cell) { return !cell.file.isEmpty(); }));
    m_failures = static_cast<int>(std::count_if(m_cells.cbegin(), m_cells.cend(),
                                                [](const Cell &cell) { return cell.state == Failed; }));
    Q_EMIT countsChanged();
}

void ImageGallery::saveAll()
{
    struct Image
    {
        QString file;
        QString folder; ///< of the device
        int channel = 0;
    };
    if (m_isSaving || m_images == 0 || !m_deviceFactory)
        return;
    QList<Image> images;
    for (const Cell &cell : std::as_const(m_cells)) {
        if (!cell.file.isEmpty())
            images.append({cell.file, snapshotFolder(cell.ipport), cell.channel});
    }
    m_isSaving = true;
    Q_EMIT savingChanged();
    const int work = m_deviceFactory->busyState()->begin(tr("保存图像"), BusyState::Program);
    m_files.start([this, images, work, kept = m_folder, root = ApplicationFolders::current().snapshots()] {
        sdk::giveWayToWindow();
        int written = 0;
        QString reason;
        for (const Image &image : images) {
            const QString folder = root + QLatin1Char('/') + image.folder;
            QFile source(image.file);
            QString failure;
            if (!source.open(QIODevice::ReadOnly))
                failure = source.errorString();
            else if (!QDir().mkpath(folder))
                failure = tr("无法建立文件夹 %1").arg(folder);
            else
                failure =
                    replaceFile(QStringLiteral("%1/%2.jpg").arg(folder).arg(image.channel), source.readAll());
            if (failure.isEmpty())
                ++written;
            else if (reason.isEmpty())
                reason = failure;
        }
        QMetaObject::invokeMethod(
            this,
            [this, work, written, failures = static_cast<int>(images.size()) - written, root, reason] {
                if (m_deviceFactory)
                    m_deviceFactory->busyState()->end(work);
                m_isSaving = false;
                Q_EMIT savingChanged();
                Q_EMIT saved(written, failures, root, reason);
            },
            Qt::QueuedConnection);
    });
}
