#include "app/shell.h"

#include "app/languagechoice.h"
#include "app/localconfig.h"
#include "app/logging.h"
#include "app/messagebox.h"
#include "app/product.h"
#include "app/publication.h"
#include "app/renderloop.h"
#include "app/translationfile.h"
#include "cgi/cgiconfigmanage.h"
#include "device/registry/devicefactory.h"
#include "favourites/passwordmove.h"
#include "files/applicationfolders.h"
#include "media/audiooutput.h"
#include "media/freedmemory.h"
#include "media/videoitem.h"
#include "sdk/threadpriority.h"
#include "secrets/secretvault.h"
#ifdef CONFIGTOOLS_SECRET_SERVICE
#include "secrets/desktopsecretstore.h"
#endif

#include <QApplication>
#include <QFile>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <chrono>
#include <utility>

Q_IMPORT_QML_PLUGIN(AuthorPlugin)
Q_IMPORT_QML_PLUGIN(DateTimeValidatorPlugin)
Q_IMPORT_QML_PLUGIN(VideoItemPlugin)
Q_IMPORT_QML_PLUGIN(configtoolsPlugin)

namespace {

constexpr int startFailed = 1;

} // namespace

void Shell::prepareApplication()
{
    limitFreedMemory();
    sdk::expectWindow();
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // no effect in Qt 6, which always scales
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QT_WARNING_POP
}

Shell::Shell(CommandLine commandLine)
    : m_commandLine(std::move(commandLine)),
      m_devices({.isDemo = m_commandLine.demo,
                 .scene = m_commandLine.scene,
                 .programFolder = ApplicationFolders::current().program(),
                 .storeFolder = ApplicationFolders::current().data()})
{
}

Shell::~Shell()
{
    // The windows first: their bindings read the objects below. The engine owns the batches, which use the
    // factory.
    if (m_engine)
        qDeleteAll(m_engine->rootObjects());
    m_engine.reset();
    AudioOutput::awaitRelease();
    m_colourScheme.reset();
    if (m_vault)
        m_vault->finish(); // passwords that the service has stored leave their files
    m_passwordMove.reset();
    m_vault.reset();
    CLocalConfig::deleteInstance();
    CGIConfigManage::deleteInstance(); // uses the factory
    CDeviceFactory::deleteInstance();
    VideoItem::registerLibraries({});
}

std::optional<int> Shell::begin()
{
    // Live video is drawn into framebuffer objects of OpenGL.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    avoidRenderThreadsInSoftware();

    m_desktopScheme = std::make_unique<DesktopScheme>(DesktopScheme::sessionBus());
    m_colourScheme = std::make_unique<ColourScheme>(*m_desktopScheme, *CLocalConfig::getinstance());
    loadTranslators();
    if (!CLocalConfig::getinstance()->acquireInstanceLock()) {
        OMessageBox::show(QObject::tr("提示"), QObject::tr("应用程序已经运行!"));
        QCoreApplication::exit(0);
        return 0;
    }
    openVault();
    if (!openDevices())
        return startFailed;
    m_devices.registerBackEnds(
        [] {
            const CLocalConfig &config = *CLocalConfig::getinstance();
            return SearchSettings{.localDomain = config.getSearchConfigLocalDomain() != 0,
                                  .logsIn = config.searchLogsIn() && !config.lacksPassword()};
        },
        {.maximumParallel = CLocalConfig::getinstance()->parallelUpgrades()});
    VideoItem::registerLibraries(m_devices.libraries());
    // The first search needs the password of the default account. A service usually responds in milliseconds,
    // but may ask the user.
    constexpr std::chrono::milliseconds longestWait(500);
    if (m_vault)
        m_vault->awaitLoaded(longestWait);
    loadQml();
    return std::nullopt;
}

void Shell::openVault()
{
#ifdef CONFIGTOOLS_SECRET_SERVICE
    // A portable copy keeps passwords in its files, since it moves between hosts.
    const ApplicationFolders &folders = ApplicationFolders::current();
    if (folders.isPortable() || m_commandLine.demo)
        return;
    m_vault = std::make_unique<SecretVault>(std::make_shared<DesktopSecretStore>(DesktopSecretStore::Options{
        .product = Product::logoName, .hasBus = !DesktopScheme::sessionBus().isEmpty()}));
    CLocalConfig::getinstance()->setVault(*m_vault);
    m_passwordMove = std::make_unique<PasswordMove>(*m_vault, folders.favourites());
#endif
}

void Shell::loadTranslators()
{
    const ApplicationFolders &folders = ApplicationFolders::current();
    const QString code = resolveLanguage(*CLocalConfig::getinstance(), QLocale::system().language());
    if (code != QLatin1String("en_US") && code != QLatin1String("zh_CN") &&
        loadTranslation(m_fallbackTranslator, folders.translation(QStringLiteral("en_US")))) {
        QCoreApplication::installTranslator(&m_fallbackTranslator);
    }
    // The last installed translator is searched first.
    if (loadTranslation(m_mainTranslator, folders.translation(code)))
        QCoreApplication::installTranslator(&m_mainTranslator);
}

bool Shell::openDevices()
{
    const std::optional<DeviceSetup::Problem> problem = m_devices.open();
    if (!problem) {
        m_devices.prepare(*CGIConfigManage::getinstance()->surroundings().transport);
        return true;
    }
    if (problem->isSite) {
        qCCritical(logApp).noquote() << "The simulated site cannot be opened:" << problem->text;
        OMessageBox::show(QObject::tr("提示"), tr("无法打开模拟站点：") + QLatin1Char('\n') + problem->text);
    } else {
        qCCritical(logApp).noquote() << "The device libraries cannot be used:" << problem->text;
        OMessageBox::show(QObject::tr("提示"), problem->text);
    }
    return false;
}

void Shell::loadQml()
{
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the controls of the application are based on it
    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    const std::optional<DeviceAccount> &account = m_devices.siteAccount();
    const DemoNotice demo = {.isShown = m_commandLine.demo,
                             .scene = m_commandLine.scene,
                             .account = account ? account->account + QLatin1String(" / ") + account->password
                                                : QString()};
    publishToScene(*m_engine, *m_devices.batchEngine(), m_devices.deviceStore(), m_devices.certificates(),
                   m_devices.accounts(), *m_colourScheme, m_devices.libraries().net, demo, m_vault.get());
    // Responses of a search leave fragmented free memory.
    QObject::connect(CDeviceFactory::getinstance(), &CDeviceFactory::signalSearchDone,
                     CDeviceFactory::getinstance(), &returnFreedMemory);
    m_engine->load(QUrl(QStringLiteral("qrc:/qt/qml/configtools/main.qml")));
    if (auto *window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0))) {
        const auto noteFirst = [] {
            qCDebug(logApp) << "first frame";
        };
        QObject::connect(window, &QQuickWindow::frameSwapped, window, noteFirst, Qt::SingleShotConnection);
    }
}
