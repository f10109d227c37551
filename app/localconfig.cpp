#include "app/localconfig.h"

#include "app/languages.h"
#include "app/logging.h"
#include "app/product.h"
#include "app/settingsfile.h"
#include "files/applicationfolders.h"
#include "secrets/secretvault.h"

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
const QString parallelDevicesKey = QStringLiteral("/batchConfig/atOnce");
const QString parallelUpgradesKey = QStringLiteral("/upgradeConfig/atOnce");

const QString colourSchemeKey = QStringLiteral("/look/colourScheme");

const QString lockKey = QStringLiteral("OrvoConfigTools");

/// Folder of the help documents in the folder of the application.
const QString documentsFolder = QStringLiteral("\\documents\\");

} // namespace

CLocalConfig *CLocalConfig::getinstance()
{
    if (!instance) {
        const ApplicationFolders &folders = ApplicationFolders::current();
        instance = new CLocalConfig(folders.program(), folders.configuration());
    }
    return instance;
}

void CLocalConfig::deleteInstance()
{
    delete instance;
    instance = nullptr;
}

CLocalConfig::CLocalConfig(const QString &directory, const QString &settingsFolder)
    : m_directory(directory), m_settingsPath(settingsFolder + QStringLiteral("/LocalConfig.ini"))
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
    // Converted from a string, so that a number out of range is 0 like any other invalid value.
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
    const QString inFile = value(passKey).toString();
    return inFile.isEmpty() && m_vault ? m_vault->value(m_settingsPath) : inFile;
}

void CLocalConfig::setSearchConfigPass(const QString &pass)
{
    if (!m_vault) {
        setValue(passKey, pass);
        return;
    }
    if (pass == getSearchConfigPass())
        return;
    setValue(passKey, pass);
    if (pass.isEmpty())
        m_vault->remove(m_settingsPath);
    keepPassword();
}

void CLocalConfig::setVault(SecretVault &vault)
{
    m_vault = &vault;
    connect(&vault, &SecretVault::loaded, this, [this] {
        if (value(passKey).toString().isEmpty())
            m_vault->reportMissing();
        keepPassword();
    });
    connect(&vault, &SecretVault::kept, this, [this](const QString &file, const QString &password) {
        if (file == m_settingsPath && value(passKey).toString() == password)
            setValue(passKey, QString());
    });
}

bool CLocalConfig::lacksPassword() const
{
    return m_vault && m_vault->state() != SecretVault::State::Ready && getSearchConfigPass().isEmpty();
}

void CLocalConfig::keepPassword()
{
    m_vault->keep(
        {.file = m_settingsPath, .title = tr("默认账号的密码"), .value = value(passKey).toString()});
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

int CLocalConfig::parallelDevices() const
{
    constexpr int defaultCount = 8;
    constexpr int maximum = 32;
    const int stored = number(parallelDevicesKey);
    return stored >= 1 && stored <= maximum ? stored : defaultCount;
}

int CLocalConfig::parallelUpgrades() const
{
    constexpr int defaultCount = 4;
    constexpr int maximum = 16;
    const int stored = number(parallelUpgradesKey);
    return stored >= 1 && stored <= maximum ? stored : defaultCount;
}

void CLocalConfig::setParallelUpgrades(int count)
{
    setValue(parallelUpgradesKey, QString::number(count));
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
    // Without the name of the application, which startDetached() adds.
    restart(QCoreApplication::arguments().mid(1));
}

void CLocalConfig::openDemoSite()
{
    restart({QStringLiteral("--demo")});
}

void CLocalConfig::restart(const QStringList &arguments)
{
    // Released first, so that the new process can acquire it.
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
    // Other systems than Windows accept "\\" as a character of a file name.
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
    const bool isAccepted = QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    Q_EMIT documentRequested(QDir::toNativeSeparators(path), isAccepted);
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

bool CLocalConfig::acquireInstanceLock()
{
#ifdef Q_OS_UNIX
    {
        // A segment remains after its owner was killed. The last process that detaches from a segment removes
        // it: this removes a remaining segment, but not that of a running instance.
        QSharedMemory remaining(lockKey);
        if (remaining.attach())
            remaining.detach();
    }
#endif
    m_instanceLock = std::make_unique<QSharedMemory>(lockKey);
    if (m_instanceLock->create(1, QSharedMemory::ReadWrite))
        return true;
    m_instanceLock.reset();
    return false;
}
