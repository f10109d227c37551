#include "app/crashreports.h"

#include "app/crashreport.h"
#include "app/logging.h"

#include <QDir>
#include <QFile>

CrashReports::CrashReports(const QString &folder, QObject *parent) : QObject(parent)
{
    // The names contain the time of the start.
    const QFileInfoList files =
        QDir(folder).entryInfoList({QString::fromLatin1(CrashReport::nameFilter)},
                                   QDir::Files | QDir::NoSymLinks, QDir::Name | QDir::Reversed);
    for (const QFileInfo &file : files) {
        if (m_paths.size() < maximumReports)
            m_paths.append(file.filePath());
        else if (!QFile::remove(file.filePath()))
            qCWarning(logApp) << "An old crash report cannot be deleted:" << file.filePath();
    }
}

QString CrashReports::text() const
{
    QStringList reports;
    for (const QString &path : m_paths) {
        QFile file(path);
        reports.append(file.open(QFile::ReadOnly) ? QString::fromUtf8(file.read(maximumBytes)).trimmed()
                                                  : path + QStringLiteral(": ") + file.errorString());
    }
    return reports.join(QStringLiteral("\n\n"));
}

void CrashReports::remove()
{
    for (const QString &path : std::as_const(m_paths)) {
        if (!QFile::remove(path))
            qCWarning(logApp) << "A crash report cannot be deleted:" << path;
    }
    m_paths.clear();
    Q_EMIT changed();
}
