#include "commandline/visitfile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QByteArray lineOf(const VisitChange &change)
{
    return QJsonDocument(QJsonObject{{u"time"_s, change.time.toString(Qt::ISODate)},
                                     {u"identity"_s, change.identity},
                                     {u"address"_s, change.ipport},
                                     {u"device"_s, change.device},
                                     {u"operation"_s, change.operation},
                                     {u"value"_s, change.value}})
               .toJson(QJsonDocument::Compact) +
           '\n';
}

} // namespace

bool VisitFile::fail(const QString &error)
{
    m_error = u"%1: %2"_s.arg(m_path, error);
    return false;
}

bool VisitFile::read()
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return true;
    // A pipe can be opened as well; reading it would not end.
    if (!QFileInfo(m_path).isFile())
        return fail(u"this is no file"_s);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    const QByteArray text = file.read(maximumSize + 1);
    if (text.size() > maximumSize)
        return fail(u"the file is too large"_s);
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (line.trimmed().isEmpty())
            continue;
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        const QDateTime time = QDateTime::fromString(entry.value("time"_L1).toString(), Qt::ISODate);
        if (!time.isValid() && m_changes.isEmpty())
            return fail(u"this is no file of --visit"_s);
        if (!time.isValid()) // a command ended while it wrote the line
            continue;
        m_changes.append({.time = time,
                          .identity = entry.value("identity"_L1).toString(),
                          .ipport = entry.value("address"_L1).toString(),
                          .device = entry.value("device"_L1).toString(),
                          .operation = entry.value("operation"_L1).toString(),
                          .value = entry.value("value"_L1).toString()});
    }
    return true;
}

bool VisitFile::isWritable()
{
    if (m_path.isEmpty())
        return true;
    // Also refuses a file of another kind.
    const bool isReadable = read();
    m_changes.clear();
    if (!isReadable)
        return false;
    QFile file(m_path);
    return file.open(QIODevice::WriteOnly | QIODevice::Append) || fail(file.errorString());
}

bool VisitFile::append(const QList<VisitChange> &changes)
{
    if (m_path.isEmpty() || changes.isEmpty())
        return true;
    QByteArray lines;
    for (const VisitChange &change : changes)
        lines += lineOf(change);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append))
        return fail(file.errorString());
    if (file.size() > 0 && file.seek(file.size() - 1) && file.read(1) != "\n")
        lines.prepend('\n'); // the last line is incomplete
    if (file.write(lines) != lines.size() || !file.flush())
        return fail(file.errorString());
    return true;
}

} // namespace commandline
