#include "device/sites/recentsites.h"

#include "device/store/logging.h"
#include "files/filereplacement.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {

const QString pathsKey = QStringLiteral("paths");
const QString currentKey = QStringLiteral("current");
const QString modifiedKey = QStringLiteral("modified");
constexpr qint64 largestPathsFile = qint64{1024} * 1024; ///< bytes

} // namespace

RecentSites::RecentSites(QString path) : m_path(std::move(path))
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject stored = QJsonDocument::fromJson(file.read(largestPathsFile)).object();
    m_current = stored.value(currentKey).toString();
    m_isModified = stored.value(modifiedKey).toBool();
    const QJsonArray paths = stored.value(pathsKey).toArray();
    for (const auto &value : paths) {
        const QString recent = value.toString();
        if (!recent.isEmpty() && m_paths.size() < most && !m_paths.contains(recent))
            m_paths.append(recent);
    }
}

void RecentSites::add(const QString &path)
{
    m_paths.removeAll(path);
    m_paths.prepend(path);
    m_paths.resize(std::min(m_paths.size(), most));
    write();
}

void RecentSites::remove(const QString &path)
{
    m_paths.removeAll(path);
    write();
}

void RecentSites::setCurrent(const QString &path)
{
    m_current = path;
    write();
}

void RecentSites::setModified(bool isModified)
{
    if (std::exchange(m_isModified, isModified) != isModified)
        write();
}

void RecentSites::write() const
{
    const QJsonObject stored = {{pathsKey, QJsonArray::fromStringList(m_paths)},
                                {currentKey, m_current},
                                {modifiedKey, m_isModified}};
    const QString failure = replaceFile(m_path, QJsonDocument(stored).toJson());
    if (!failure.isEmpty())
        qCWarning(logDevice).noquote() << "cannot write" << m_path << '-' << failure;
}
