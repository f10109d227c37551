#include "device/store/devicenotes.h"

#include "device/store/devicerow.h"
#include "device/store/logging.h"
#include "files/filereplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {

const QString notesKey = QStringLiteral("notes");
const QString deviceKey = QStringLiteral("device");
const QString textKey = QStringLiteral("text");

/// Devices report MACs in several notations.
QString macIdentity(const QString &mac)
{
    return mac.toLower().replace(QLatin1Char('-'), QLatin1Char(':'));
}

/// Identities of the device of a row, the most reliable one first. A device may report its MAC only later.
QStringList identitiesOf(const QString &mac, const QString &name)
{
    QStringList identities;
    if (!mac.isEmpty())
        identities.append(macIdentity(mac));
    if (name.startsWith(uuidPrefix))
        identities.append(name.toLower());
    return identities;
}

QStringList identitiesOf(const QVariantMap &row)
{
    return identitiesOf(row.value(DeviceRowKey::mac).toString(),
                        row.value(DeviceRowKey::identity).toString());
}

QString firstNote(const QHash<QString, QString> &notes, const QStringList &identities)
{
    for (const QString &identity : identities) {
        const auto note = notes.constFind(identity);
        if (note != notes.cend())
            return *note;
    }
    return {};
}

} // namespace

DeviceNotes::DeviceNotes(QString path, QObject *parent) : QObject(parent), m_path(std::move(path))
{
    read();
}

void DeviceNotes::read()
{
    m_state = State::Valid;
    m_problem.clear();
    m_notes.clear();
    QFile file(m_path);
    if (!QFileInfo::exists(m_path))
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_state = State::Unopened;
        m_problem = tr("备注文件 %1 无法读取：%2").arg(m_path, file.errorString());
        qCWarning(logDevice).noquote() << "cannot read" << m_path << "-" << file.errorString();
        return;
    }
    const QByteArray text = file.read(largestFile + 1);
    const QJsonValue list =
        QJsonDocument::fromJson(text.size() > largestFile ? QByteArray() : text).object().value(notesKey);
    bool isValid = list.isArray();
    const QJsonArray objects = list.toArray();
    for (const auto &value : objects) {
        const QJsonObject object = value.toObject();
        const QString device = object.value(deviceKey).toString();
        const QString note = object.value(textKey).toString();
        const bool isUsed = !device.isEmpty() && !note.isEmpty() && m_notes.size() < mostNotes;
        isValid = isValid && isUsed;
        if (isUsed)
            m_notes.insert(device, note.simplified());
    }
    if (isValid)
        return;
    m_state = State::Damaged;
    m_problem = tr("备注文件 %1 已损坏，部分备注可能丢失。下次保存备注时，该文件会改名保留。").arg(m_path);
    qCWarning(logDevice).noquote() << m_path << "contains invalid notes";
}

QString DeviceNotes::noteOf(const QJsonObject &row) const
{
    if (m_notes.isEmpty())
        return {};
    return firstNote(m_notes, identitiesOf(row.value(DeviceRowKey::mac).toString(),
                                           row.value(DeviceRowKey::identity).toString()));
}

QString DeviceNotes::noteOf(const QVariantMap &row) const
{
    return firstNote(m_notes, identitiesOf(row));
}

bool DeviceNotes::canNote(const QVariantMap &row) const
{
    return !identitiesOf(row).isEmpty();
}

QString DeviceNotes::setNote(const QVariantMap &row, const QString &note)
{
    const QStringList identities = identitiesOf(row);
    const QString text = note.simplified();
    const QString before = noteOf(row);
    if (identities.isEmpty())
        return tr("设备没有报告MAC或UUID，不能添加备注");
    if (text == before)
        return {};
    if (text.size() > longestNote() && text.size() > before.size())
        return tr("备注最多 %1 个字符").arg(longestNote());
    if (m_state == State::Unopened) {
        read(); // the file may be readable now
        Q_EMIT changed();
    }
    if (m_state == State::Unopened)
        return m_problem;

    QHash<QString, QString> notes = m_notes;
    for (const QString &identity : identities)
        notes.remove(identity);
    if (!text.isEmpty()) {
        if (notes.size() >= mostNotes)
            return tr("最多可以保存 %1 条备注").arg(mostNotes);
        notes.insert(identities.constFirst(), text);
    }
    return replace(std::move(notes));
}

QString DeviceNotes::addMissing(const QList<std::pair<QJsonObject, QString>> &added)
{
    QHash<QString, QString> notes = m_notes;
    for (const auto &[row, note] : added) {
        const QStringList identities = identitiesOf(row.value(DeviceRowKey::mac).toString(),
                                                    row.value(DeviceRowKey::identity).toString());
        const QString text = note.simplified().left(longestNote());
        if (!identities.isEmpty() && !text.isEmpty() && firstNote(notes, identities).isEmpty() &&
            notes.size() < mostNotes)
            notes.insert(identities.constFirst(), text);
    }
    if (notes.size() == m_notes.size())
        return {};
    return m_state == State::Unopened ? m_problem : replace(std::move(notes));
}

/// Writes the notes and uses them from now on. Returns the reason of a failure in the user's language.
QString DeviceNotes::replace(QHash<QString, QString> notes)
{
    const QString failure = write(notes);
    if (!failure.isEmpty()) {
        qCWarning(logDevice).noquote() << "cannot write" << m_path << "-" << failure;
        return tr("备注无法保存：%1").arg(failure);
    }
    m_state = State::Valid;
    m_problem.clear();
    m_notes = std::move(notes);
    Q_EMIT changed();
    return {};
}

QString DeviceNotes::write(const QHash<QString, QString> &notes) const
{
    QStringList devices = notes.keys();
    std::sort(devices.begin(), devices.end());
    QJsonArray list;
    for (const QString &device : std::as_const(devices))
        list.append(QJsonObject{{deviceKey, device}, {textKey, notes.value(device)}});
    if (m_state == State::Damaged) {
        QString failure = setDamagedFileAside(m_path);
        if (!failure.isEmpty())
            return failure;
    }
    return replaceFile(m_path, QJsonDocument(QJsonObject{{notesKey, list}}).toJson());
}
