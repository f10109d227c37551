#include "files/applicationfolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

bool isPortableFolder(const QString &folder)
{
    return QFileInfo(folder).isWritable() &&
           !QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(installedMarkName));
}

QString folderOfUser(QStandardPaths::StandardLocation location, QLatin1StringView name)
{
    return QStandardPaths::writableLocation(location) + QLatin1Char('/') + name;
}

} // namespace

const ApplicationFolders &ApplicationFolders::current()
{
    static const ApplicationFolders folders = [] {
        ApplicationFolders determined(QCoreApplication::applicationDirPath());
        determined.createMissing();
        return determined;
    }();
    return folders;
}

ApplicationFolders::ApplicationFolders(const QString &program)
    : m_program(program), m_isPortable(isPortableFolder(program)), m_configuration(program), m_data(program),
      m_responses(program)
{
    if (m_isPortable)
        return;
    // Hidden folders are named after the package, visible ones after the application.
    constexpr QLatin1StringView hidden("configtools");
    constexpr QLatin1StringView visible("ConfigTools");
    m_configuration = folderOfUser(QStandardPaths::GenericConfigLocation, hidden);
    m_data = folderOfUser(QStandardPaths::GenericDataLocation, hidden);
    m_responses = folderOfUser(QStandardPaths::DocumentsLocation, visible);
    m_snapshots = folderOfUser(QStandardPaths::PicturesLocation, visible);
}

QString ApplicationFolders::portAgentSettings() const
{
    return (m_isPortable ? QStringLiteral(".") : m_configuration) + QLatin1String("/p2p.ini");
}

QString ApplicationFolders::favourites() const
{
    return m_data + QLatin1String("/fav/");
}

QString ApplicationFolders::snapshots() const
{
    return m_isPortable ? QDir::current().absoluteFilePath(QStringLiteral("snap")) : m_snapshots;
}

QString ApplicationFolders::translation(const QString &code) const
{
    return (m_isPortable ? QStringLiteral(".") : m_program) + QLatin1String("/language/") + code +
           QLatin1String(".qm");
}

void ApplicationFolders::createMissing() const
{
    if (m_isPortable)
        return;
    for (const QString &folder : {m_configuration, m_data}) {
        // They contain passwords.
        if (!QFileInfo::exists(folder) && QDir().mkpath(folder))
            QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}
