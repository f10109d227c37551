#include "device/sites/knowndevices.h"

#include "device/sites/sitefile.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "device/store/logging.h"
#include "files/filereplacement.h"

#include <QCollator>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

const QString recentNameKey = QStringLiteral("name");
const QString recentPathKey = QStringLiteral("path");

QString localFile(const QString &path)
{
    return path.startsWith(QLatin1String("file:")) ? QUrl(path).toLocalFile() : path;
}

/// Its address is a port of this host, which another device may get later.
bool isBehindNat(const QJsonObject &row)
{
    return row.value(DeviceRowKey::loginType).toString() == QLatin1String("P2P");
}

QString serialOf(const std::optional<sdk::SearchResponse> &record)
{
    return record ? fieldText(record->device.serialNumber) : QString();
}

} // namespace

KnownDevices::KnownDevices(std::shared_ptr<DeviceStore> store, Files files, QObject *parent)
    : QObject(parent), m_store(std::move(store)), m_files(std::move(files)),
      m_recent(m_files.folder + QLatin1Char('/') + m_files.prefix + QLatin1String("-recent.json")),
      m_copies(m_files.folder + QLatin1Char('/') + m_files.prefix + QLatin1String("-copies"))
{
    m_writers.setMaxThreadCount(1);
    read();
}

KnownDevices::~KnownDevices()
{
    takeListed(Additions::None);
    store();
    m_writers.waitForDone();
}

QString KnownDevices::currentFile() const
{
    return m_files.folder + QLatin1Char('/') + m_files.prefix + QLatin1Char('.') + SiteFile::suffix;
}

void KnownDevices::read()
{
    if (!QFileInfo::exists(currentFile()))
        return;
    SiteFile::Contents contents = SiteFile::readFile(currentFile());
    m_isUnopened = contents.isUnopened;
    m_isDamaged = !contents.refusal.isEmpty() && !contents.isUnopened;
    if (!contents.refusal.isEmpty()) {
        qCWarning(logDevice).noquote() << "cannot read" << currentFile() << '-' << contents.refusal;
        m_problem = tr("上次的设备列表 %1 无法读取：%2").arg(currentFile(), contents.refusal);
    }
    replaceSite(std::move(contents.site));
    m_isModified = m_recent.isModified();
}

void KnownDevices::replaceSite(Site site)
{
    m_site = std::move(site);
    for (KnownDevice &device : m_site.devices)
        device.note.clear(); // DeviceNotes has them
    indexDevices();
    const QStringList keys = m_index.keys();
    m_before = QSet<QString>(keys.cbegin(), keys.cend());
    m_hidden.clear();
    m_isComplete = false;
    m_isModified = false;
}

void KnownDevices::indexDevices()
{
    m_index.clear();
    for (qsizetype index = 0; index < m_site.devices.size(); ++index)
        m_index.insert(m_site.devices.at(index).key(), index);
}

QVariantList KnownDevices::recentSites() const
{
    QVariantList sites;
    for (const QString &path : m_recent.paths())
        sites.append(QVariantMap{{recentNameKey, QFileInfo(path).completeBaseName()}, {recentPathKey, path}});
    return sites;
}

QStringList KnownDevices::groups() const
{
    QSet<QString> names;
    for (const KnownDevice &device : m_site.devices)
        names.insert(device.group);
    names.remove(QString());
    QStringList sorted(names.cbegin(), names.cend());
    QCollator collator;
    collator.setNumericMode(true);
    std::sort(sorted.begin(), sorted.end(), collator);
    return sorted;
}

void KnownDevices::beginSearch()
{
    takeListed(Additions::None);
    const QStringList keys = m_index.keys();
    m_before = QSet<QString>(keys.cbegin(), keys.cend());
    m_hidden.clear();
    m_isComplete = false;
    Q_EMIT changed();
}

void KnownDevices::endSearch(bool isStopped)
{
    m_isComplete = !isStopped;
    takeListed(Additions::All);
    store();
    Q_EMIT changed();
}

/// Updates the known devices from the list, and adds those that are not known.
void KnownDevices::takeListed(Additions additions)
{
    takeRows(m_store->ipv4Rows(), false, additions);
    takeRows(m_store->ipv6Rows(), true, additions);
}

void KnownDevices::takeRows(const QVariantList &rows, bool isIPv6, Additions additions)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const QVariant &value : rows) {
        const QJsonObject row = value.toJsonObject();
        const bool isTaken = additions == Additions::All || indexOf(knownKeys(row, isIPv6)) >= 0;
        if (!isTaken || row.value(DeviceRowKey::lost).toBool())
            continue;
        if (KnownDevice *device = take(row, isIPv6))
            device->lastSeen = now;
    }
}

/// The device of a listed row, with its present values. Null for a device that cannot be known, or if the
/// site is full.
KnownDevice *KnownDevices::take(const QJsonObject &row, bool isIPv6)
{
    KnownDevice present = knownDevice(row, isIPv6);
    if (isBehindNat(row) || present.key().isEmpty())
        return nullptr;
    const qsizetype index = indexOf(knownKeys(row, isIPv6));
    present.serial = isIPv6 ? QString() : serialOf(m_store->record(rowName(row)));
    if (index < 0) {
        if (m_site.devices.size() >= SiteFile::mostDevices)
            return nullptr;
        m_index.insert(present.key(), m_site.devices.size());
        m_site.devices.append(std::move(present));
        m_isModified = true;
        return &m_site.devices.last();
    }
    KnownDevice &device = m_site.devices[index];
    if (present.serial.isEmpty())
        present.serial = device.serial;
    present.group = device.group;
    present.lastSeen = device.lastSeen;
    m_isModified = m_isModified || !present.isSameAs(device);
    m_index.remove(device.key()); // its MAC may have become known
    m_index.insert(present.key(), index);
    device = std::move(present);
    return &device;
}

/// The index in m_site.devices of the device with one of the keys; -1 if it is not known.
qsizetype KnownDevices::indexOf(const QStringList &keys) const
{
    for (const QString &key : keys) {
        const auto found = m_index.constFind(key);
        if (found != m_index.cend())
            return *found;
    }
    return -1;
}

void KnownDevices::hide(const QList<QJsonObject> &rows, bool isIPv6)
{
    for (const QJsonObject &row : rows) {
        for (const QString &key : knownKeys(row, isIPv6))
            m_hidden.insert(key);
    }
}

void KnownDevices::addValues(QJsonObject &row, bool isIPv6) const
{
    addValues(row, knownKeys(row, isIPv6));
}

void KnownDevices::addValues(QJsonObject &row, const QStringList &keys) const
{
    const qsizetype index = indexOf(keys);
    if (index >= 0 && !m_site.devices.at(index).group.isEmpty())
        row.insert(SiteKey::group, m_site.devices.at(index).group);
    const bool isNew =
        !m_before.isEmpty() && std::none_of(keys.cbegin(), keys.cend(),
                                            [this](const QString &key) { return m_before.contains(key); });
    if (isNew && !row.value(DeviceRowKey::lost).toBool() && !isBehindNat(row))
        row.insert(SiteKey::presence, int(Presence::New));
}

void KnownDevices::complete(QVariantList &list, bool isIPv6) const
{
    if (m_site.devices.isEmpty() && m_before.isEmpty())
        return;
    QSet<QString> left = m_hidden;
    left.reserve(list.size());
    for (QVariant &value : list) {
        QJsonObject row = value.toJsonObject();
        const qsizetype size = row.size();
        const QStringList keys = knownKeys(row, isIPv6);
        for (const QString &key : keys)
            left.insert(key);
        addValues(row, keys);
        if (row.size() != size)
            value = row;
    }
    const Presence absent = m_isComplete ? Presence::Missing : Presence::Waiting;
    for (const KnownDevice &device : m_site.devices) {
        if (device.isIPv6 == isIPv6 && !left.contains(device.key()))
            list.append(device.row(absent));
    }
}

QString KnownDevices::setGroup(const QVariantList &rows, const QString &group, bool isIPv6)
{
    const QString name = group.simplified();
    if (name.size() > KnownDevice::longestGroup)
        return tr("分组名称最多 %1 个字符").arg(KnownDevice::longestGroup);
    QList<QJsonObject> devices;
    for (const QVariant &value : rows) {
        devices.append(QJsonObject::fromVariantMap(value.toMap()));
        if (isBehindNat(devices.last()))
            return tr("P2P设备不能分组");
    }
    QSet<QString> added;
    for (const QJsonObject &row : std::as_const(devices)) {
        if (indexOf(knownKeys(row, isIPv6)) < 0)
            added.insert(knownDevice(row, isIPv6).key());
    }
    if (m_site.devices.size() + added.size() > SiteFile::mostDevices)
        return tr("现场最多 %1 台设备").arg(SiteFile::mostDevices);
    for (const QJsonObject &row : std::as_const(devices)) {
        const qsizetype index = indexOf(knownKeys(row, isIPv6));
        KnownDevice *device = index >= 0 ? &m_site.devices[index] : take(row, isIPv6);
        if (!device) // an empty row
            continue;
        m_isModified = m_isModified || device->group != name;
        device->group = name;
    }
    store();
    Q_EMIT changed();
    return {};
}

void KnownDevices::forget(const QVariantMap &row, bool isIPv6)
{
    const qsizetype index = indexOf(knownKeys(QJsonObject::fromVariantMap(row), isIPv6));
    if (index < 0)
        return;
    m_site.devices.removeAt(index);
    indexDevices();
    m_isModified = true;
    store();
    Q_EMIT changed();
}

QString KnownDevices::open(const QString &path)
{
    const QString file = QFileInfo(localFile(path)).absoluteFilePath();
    SiteFile::Contents contents = SiteFile::readFile(file);
    if (!contents.refusal.isEmpty()) {
        m_recent.remove(file);
        Q_EMIT siteChanged();
        return contents.refusal;
    }
    QString failure = keepCopy();
    if (!failure.isEmpty())
        return failure;
    if (m_notes) {
        QList<std::pair<QJsonObject, QString>> notes;
        for (const KnownDevice &device : std::as_const(contents.site.devices)) {
            if (!device.note.isEmpty())
                notes.append({device.row(Presence::Waiting), device.note});
        }
        failure = m_notes->addMissing(notes);
        if (!failure.isEmpty())
            return failure;
    }
    if (contents.site.name.isEmpty())
        contents.site.name = QFileInfo(file).completeBaseName();
    replaceSite(std::move(contents.site));
    m_recent.setCurrent(file);
    m_recent.add(file);
    store();
    Q_EMIT siteChanged();
    Q_EMIT changed();
    return {};
}

QString KnownDevices::saveAs(const QString &path)
{
    takeListed(Additions::All);
    const QString file = QFileInfo(localFile(path)).absoluteFilePath();
    Site saved = m_site;
    saved.name = QFileInfo(file).completeBaseName().left(SiteFile::longestText);
    for (KnownDevice &device : saved.devices)
        device.note = m_notes ? m_notes->noteOf(device.row(Presence::Listed)) : QString();
    const QString failure = replaceFile(file, SiteFile::text(saved));
    if (!failure.isEmpty())
        return tr("现场无法保存：%1").arg(failure);
    m_site.name = saved.name;
    m_isModified = false;
    m_recent.setCurrent(file);
    m_recent.add(file);
    store();
    Q_EMIT siteChanged();
    Q_EMIT changed();
    return {};
}

QString KnownDevices::startNew()
{
    QString failure = keepCopy();
    if (!failure.isEmpty())
        return failure;
    replaceSite({});
    m_recent.setCurrent({});
    store();
    Q_EMIT siteChanged();
    Q_EMIT changed();
    return {};
}

/// Stores the current site on the writing thread.
void KnownDevices::store()
{
    if (m_isUnopened) // its state is kept as well
        return;
    m_recent.setModified(m_isModified);
    if (m_site.devices.isEmpty() && !QFileInfo::exists(currentFile()))
        return;
    m_writers.start([this, site = m_site, path = currentFile()] {
        QString failure = m_isDamaged ? setDamagedFileAside(path) : QString();
        if (failure.isEmpty()) {
            m_isDamaged = false;
            failure = replaceFile(path, SiteFile::text(site));
        }
        QMetaObject::invokeMethod(
            this, [this, failure] { takeResult(failure); }, Qt::QueuedConnection);
    });
}

void KnownDevices::takeResult(const QString &failure)
{
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write" << currentFile() << '-' << failure;
    const QString problem = failure.isEmpty() ? QString() : tr("设备列表无法保存：%1").arg(failure);
    if (std::exchange(m_problem, problem) != problem)
        Q_EMIT problemChanged();
}

/// Keeps a copy of the current site if it has unsaved changes, and lists it in the recent sites. Returns the
/// reason of a failure.
QString KnownDevices::keepCopy()
{
    if (!m_isModified || m_site.devices.isEmpty())
        return {};
    const SiteCopies::Copy copy =
        m_copies.keep(m_site, m_site.name.isEmpty() ? tr("未保存的现场") : m_site.name);
    if (!copy.failure.isEmpty())
        return tr("原现场无法保存：%1").arg(copy.failure);
    m_recent.add(copy.path);
    return {};
}
