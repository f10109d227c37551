#include "app/localconfig.h"

#include "app/languages.h"
#include "app/logging.h"
#include "app/product.h"
#include "app/settingsfile.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QSettings>
#include <QSharedMemory>
#include <QUrl>

namespace {

CLocalConfig *instance = nullptr;

const QString languageKey = QStringLiteral("/language/name");
const QString localDomainKey = QStringLiteral("/searchConfig/localDomain");
const QString otherDomainKey = QStringLiteral("/searchConfig/otherDomain");
const QString startIpKey = QStringLiteral("/searchConfig/startIP");
const QString endIpKey = QStringLiteral("/searchConfig/endIP");
const QString usernameKey = QStringLiteral("/searchConfig/username");
const QString passKey = QStringLiteral("/searchConfig/pass");
const QString loginKey = QStringLiteral("/searchConfig/login");
const QString devicesAtOnceKey = QStringLiteral("/batchConfig/atOnce");
const QString upgradesAtOnceKey = QStringLiteral("/upgradeConfig/atOnce");

const QString colourSchemeKey = QStringLiteral("/look/colourScheme");

const QString lockKey = QStringLiteral("OrvoConfigTools");

/// Folder of the help documents below the program's, with the separators that its path is written with.
const QString documentsFolder = QStringLiteral("\\documents\\");

} // namespace

CLocalConfig *CLocalConfig::getinstance()
{
    if (!instance)
        instance = new CLocalConfig(QCoreApplication::applicationDirPath());
    return instance;
}

void CLocalConfig::deleteInstance()
{
    delete instance;
    instance = nullptr;
}

CLocalConfig::CLocalConfig(const QString &directory)
    : m_directory(directory), m_settingsPath(directory + QStringLiteral("/LocalConfig.ini"))
{
    if (!QFileInfo::exists(m_settingsPath))
        writeDefaults();

    int index = 0;
    for (const QLatin1StringView code : languageCodes) {
        if (hasTranslation(code))
            m_languageFiles.append(translationFile(code));
        else
            m_removedLanguages.append(index);
        ++index;
    }
}

CLocalConfig::~CLocalConfig() = default;

QVariant CLocalConfig::value(const QString &key) const
{
    return QSettings(m_settingsPath, QSettings::IniFormat).value(key);
}

int CLocalConfig::number(const QString &key) const
{
    // Through the text: a number that does not fit is then 0 like any other text that is no number.
    return value(key).toString().toInt();
}

void CLocalConfig::setValues(const QList<QPair<QString, QString>> &values)
{
    const QString failure = SettingsFile(m_settingsPath).change(values);
    if (!failure.isEmpty())
        qCWarning(logApp).noquote() << "CLocalConfig: cannot write" << m_settingsPath << "-" << failure;
}

void CLocalConfig::writeDefaults()
{
    setValues({{languageKey, QString()},
               {localDomainKey, QStringLiteral("1")},
               {otherDomainKey, QStringLiteral("0")},
               {startIpKey, QStringLiteral("192.168.1.1")},
               {endIpKey, QStringLiteral("192.168.1.255")},
               {usernameKey, QStringLiteral("admin")},
               {passKey, QStringLiteral("739164")}});
}

QString CLocalConfig::getLanguage() const
{
    return value(languageKey).toString();
}

void CLocalConfig::setLanguage(const QString &lang)
{
    setValue(languageKey, lang);
}

QString CLocalConfig::getSearchConfigStartIP() const
{
    return value(startIpKey).toString();
}

void CLocalConfig::setSearchConfigStartIP(const QString &address)
{
    setValue(startIpKey, address);
}

QString CLocalConfig::getSearchConfigEndIP() const
{
    return value(endIpKey).toString();
}

void CLocalConfig::setSearchConfigEndIP(const QString &address)
{
    setValue(endIpKey, address);
}

QString CLocalConfig::getSearchConfigUsrename() const
{
    return value(usernameKey).toString();
}

void CLocalConfig::setSearchConfigUsername(const QString &user)
{
    setValue(usernameKey, user);
}

QString CLocalConfig::getSearchConfigPass() const
{
    return value(passKey).toString();
}

void CLocalConfig::setSearchConfigPass(const QString &pass)
{
    setValue(passKey, pass);
}

int CLocalConfig::getSearchConfigLocalDomain() const
{
    return number(localDomainKey);
}

void CLocalConfig::setSearchConfigLocalDomain(int check)
{
    setValue(localDomainKey, QString::number(check));
}

int CLocalConfig::getSearchConfigOtherDomain() const
{
    return number(otherDomainKey);
}

void CLocalConfig::setSearchConfigOtherDomain(int check)
{
    setValue(otherDomainKey, QString::number(check));
}

bool CLocalConfig::searchLogsIn() const
{
    return number(loginKey) != 0;
}

void CLocalConfig::setSearchLogsIn(bool logsIn)
{
    setValue(loginKey, QString::number(logsIn ? 1 : 0));
}

int CLocalConfig::devicesAtOnce() const
{
    constexpr int usual = 8;
    constexpr int most = 32;
    const int wanted = number(devicesAtOnceKey);
    return wanted >= 1 && wanted <= most ? wanted : usual;
}

int CLocalConfig::upgradesAtOnce() const
{
    constexpr int usual = 4;
    constexpr int most = 16;
    const int wanted = number(upgradesAtOnceKey);
    return wanted >= 1 && wanted <= most ? wanted : usual;
}

void CLocalConfig::setUpgradesAtOnce(int count)
{
    setValue(upgradesAtOnceKey, QString::number(count));
}

QString CLocalConfig::colourScheme() const
{
    const QString scheme = value(colourSchemeKey).toString();
    return scheme == u"light" || scheme == u"dark" ? scheme : QStringLiteral("desktop");
}

void CLocalConfig::setColourScheme(const QString &scheme)
{
    setValue(colourSchemeKey, scheme);
}

void CLocalConfig::reboot()
{
    // arguments() begins with the program's own name, which the new process gets from startDetached().
    restart(QCoreApplication::arguments().mid(1));
}

void CLocalConfig::openDemoSite()
{
    restart({QStringLiteral("--demo")});
}

void CLocalConfig::restart(const QStringList &arguments)
{
    // Freed first, so that the new process can take it.
    m_instanceLock.reset();
    QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments, QString());
    QCoreApplication::quit();
}

QString CLocalConfig::getVersion() const
{
    return Product::version;
}

QString CLocalConfig::getSoftwareName() const
{
    return QGuiApplication::applicationDisplayName();
}

QString CLocalConfig::getLogoSoftwareName() const
{
    return Product::logoName;
}

void CLocalConfig::OpenHelpFile()
{
    openDocument(QStringLiteral("manual_"));
}

void CLocalConfig::OpenQAFile()
{
    openDocument(QStringLiteral("QA_"));
}

void CLocalConfig::openDocument(const QString &name)
{
    // Where "\" is a letter of a file name like any other, the file is found by the system's own separator.
    const auto file = [this](QString document) {
        document.prepend(documentsFolder).append(QLatin1String(".pdf"));
#ifndef Q_OS_WIN
        document.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
        return m_directory + document;
    };
    QString path = file(name + m_currentLanguage);
    if (!QFileInfo::exists(path))
        path = file(name + QLatin1String("en_US"));
    const bool isHandedOver = QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    Q_EMIT documentRequested(QDir::toNativeSeparators(path), isHandedOver);
}

QString CLocalConfig::getAppPath() const
{
    return m_directory;
}

QVariantList CLocalConfig::getRemoveLanguageList() const
{
    return m_removedLanguages;
}

QPoint CLocalConfig::cursorPos() const
{
    return QCursor::pos();
}

void CLocalConfig::setCurrentLanguage(const QString &code)
{
    m_currentLanguage = code;
}

QString CLocalConfig::translationFile(const QString &code) const
{
    return m_directory + QLatin1String("/language/") + code + QLatin1String(".qm");
}

bool CLocalConfig::hasTranslation(const QString &code) const
{
    return QFileInfo::exists(translationFile(code));
}

bool CLocalConfig::anotherInstanceRuns()
{
#ifdef Q_OS_UNIX
    {
        // A segment outlives a killed owner here. The last process to detach from one removes it: this takes
        // away a segment that nobody holds, and leaves one that somebody does.
        QSharedMemory left(lockKey);
        if (left.attach())
            left.detach();
    }
#endif
    m_instanceLock = std::make_unique<QSharedMemory>(lockKey);
    if (m_instanceLock->create(1, QSharedMemory::ReadWrite))
        return false;
    m_instanceLock.reset();
    return true;
}
