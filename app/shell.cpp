#include "app/shell.h"

#include "app/devicelibraries.h"
#include "app/languagechoice.h"
#include "app/localconfig.h"
#include "app/logging.h"
#include "app/messagebox.h"
#include "app/publication.h"
#include "app/translationfile.h"
#include "cgi/cgiconfigmanage.h"
#include "device/accounts/certificatestore.h"
#include "device/batch/batchengine.h"
#include "device/dh/devicedh.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicehik.h"
#include "device/registry/deviceol.h"
#include "device/store/devicestore.h"
#include "favourites/accountstore.h"
#include "files/applicationfolders.h"
#include "media/audiooutput.h"
#include "media/freedmemory.h"
#include "media/videoitem.h"
#include "sdk/clock.h"
#include "sdk/configtext/configtextlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "sdk/onvif/onvifnetlibrary.h"
#include "sdk/threadpriority.h"

#include <QApplication>
#include <QFile>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QtQml/QQmlExtensionPlugin>

#include <algorithm>
#include <utility>

Q_IMPORT_QML_PLUGIN(AuthorPlugin)
Q_IMPORT_QML_PLUGIN(DateTimeValidatorPlugin)
Q_IMPORT_QML_PLUGIN(VideoItemPlugin)
Q_IMPORT_QML_PLUGIN(configtoolsPlugin)

namespace {

constexpr int startFailed = 1;

/// The account of most devices of a site as "user / password"; empty if no device has one.
QString usualAccount(const sdk::demo::DemoSite &site)
{
    QHash<QString, int> devices;
    site.forEachDevice([&devices](const sdk::demo::SceneDevice &device) {
        if (!device.accounts.isEmpty())
            ++devices[device.accounts.constFirst().user + QLatin1String(" / ") +
                      device.accounts.constFirst().password];
    });
    const auto most = std::max_element(devices.cbegin(), devices.cend());
    return most == devices.cend() ? QString() : most.key();
}

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

Shell::Shell(CommandLine commandLine) : m_commandLine(std::move(commandLine)) {}

Shell::~Shell()
{
    // The windows first: their bindings read the objects below. The engine owns the batches, which use the
    // factory.
    if (m_engine)
        qDeleteAll(m_engine->rootObjects());
    m_engine.reset();
    AudioOutput::awaitRelease();
    m_colourScheme.reset();
    CLocalConfig::deleteInstance();
    CGIConfigManage::deleteInstance(); // uses the factory
    CDeviceFactory::deleteInstance();
    VideoItem::registerLibraries({});
}

std::optional<int> Shell::begin()
{
    // Live video is drawn into framebuffer objects of OpenGL.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);

    m_desktopScheme = std::make_unique<DesktopScheme>(DesktopScheme::sessionBus());
    m_colourScheme = std::make_unique<ColourScheme>(*m_desktopScheme, *CLocalConfig::getinstance());
    loadTranslators();
    if (!CLocalConfig::getinstance()->acquireInstanceLock()) {
        OMessageBox::show(QObject::tr("提示"), QObject::tr("应用程序已经运行!"));
        QCoreApplication::exit(0);
        return 0;
    }
    if (!chooseLibraries())
        return startFailed;
    chooseCertificates();
    chooseAccounts();
    registerBackEnds();
    VideoItem::registerLibraries(m_libraries);
    loadQml();
    return std::nullopt;
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

bool Shell::chooseLibraries()
{
    m_libraries.clock = std::make_shared<sdk::SystemClock>();
    m_libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
    QString bindingError;
    if (!m_commandLine.demo &&
        bindDeviceLibraries(ApplicationFolders::current().program(), m_libraries, bindingError)) {
        if (bindingError.isEmpty())
            return true;
        qCCritical(logApp).noquote() << "The device libraries cannot be used:" << bindingError;
        OMessageBox::show(QObject::tr("提示"), bindingError);
        return false;
    }
    if (!m_commandLine.demo) {
        m_libraries.net = std::make_shared<sdk::onvif::OnvifNetLibrary>();
        m_libraries.config = std::make_shared<sdk::ConfigTextLibrary>();
        return true;
    }
    QString error;
    const std::shared_ptr<sdk::demo::DemoSite> site =
        sdk::demo::DemoSite::open(m_commandLine.scene, m_libraries.clock, &error);
    if (!site) {
        // The error may quote the scene file, whose strings may be long.
        constexpr qsizetype longestError = 400;
        error = error.simplified();
        if (error.size() > longestError)
            error = error.left(longestError) + QChar(0x2026);
        qCCritical(logApp).noquote() << "The simulated site cannot be opened:" << error;
        OMessageBox::show(QObject::tr("提示"), tr("无法打开模拟站点：") + QLatin1Char('\n') + error);
        return false;
    }
    m_demo = {.isShown = true, .account = usualAccount(*site)};
    const std::shared_ptr<sdk::DecoderLibrary> decoder = std::move(m_libraries.decoder);
    m_libraries = site->libraries();
    m_libraries.decoder = decoder;
    // A site without a proxy gets an address where nothing listens, so that no real device is reached.
    const QString proxy = site->httpProxy();
    CGIConfigManage::getinstance()->setProxy(proxy.isEmpty() ? QStringLiteral("http://127.0.0.1:9") : proxy);
    return true;
}

void Shell::chooseCertificates()
{
    // Not stored for simulated devices: their keys change at each start, and they have addresses of real
    // ones.
    const QString path = m_commandLine.demo
                             ? QString()
                             : ApplicationFolders::current().data() + QStringLiteral("/certificates.json");
    m_certificates = std::make_shared<CertificateStore>(path);
    if (m_libraries.net)
        m_libraries.net->NetSetCertificateHandler(&CertificateStore::handle, m_certificates.get());
    CGIConfigManage::getinstance()->setCertificateHandler(&CertificateStore::handle, m_certificates.get());
}

void Shell::chooseAccounts()
{
    // Not stored for simulated devices: each start resets their passwords, and some have MACs of real ones.
    const QString path = m_commandLine.demo
                             ? QString()
                             : ApplicationFolders::current().data() + QStringLiteral("/accounts.json");
    m_accounts = std::make_shared<AccountStore>(path);
}

void Shell::registerBackEnds()
{
    const auto store = m_deviceStore = std::make_shared<DeviceStore>(m_libraries.clock);
    m_batchEngine = std::make_shared<BatchEngine>(m_libraries.clock);
    CDeviceFactory::registerBackEnd(QStringLiteral("dh"), [store, libraries = m_libraries,
                                                           engine = m_batchEngine, accounts = m_accounts] {
        const auto searchSettings = [] {
            const CLocalConfig &config = *CLocalConfig::getinstance();
            return SearchSettings{.localDomain = config.getSearchConfigLocalDomain() != 0,
                                  .logsIn = config.searchLogsIn()};
        };
        const UpgradeLimits upgradeLimits{.maximumParallel = CLocalConfig::getinstance()->parallelUpgrades()};
        auto backEnd = std::make_shared<CDeviceDH>(store, libraries, searchSettings, upgradeLimits, engine);
        backEnd->setStoredAccounts([accounts](const QStringList &identities) {
            const std::optional<StoredAccount> stored = accounts->accountOf(identities);
            return stored ? std::optional(
                                DeviceAccount{.account = stored->account, .password = stored->password})
                          : std::nullopt;
        });
        return backEnd;
    });
    CDeviceFactory::registerP2PAgent({.library = m_libraries.p2pAgent, .handler = &CDeviceDH::agentMessage});
    CDeviceFactory::registerBackEnd(QStringLiteral("hik"), [] { return std::make_shared<CDeviceHik>(); });
    CDeviceFactory::registerBackEnd(QStringLiteral("ol"), [] { return std::make_shared<CDeviceOL>(); });
}

void Shell::loadQml()
{
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the controls of the application are based on it
    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    publishToScene(*m_engine, *m_batchEngine, m_deviceStore, m_certificates, m_accounts, *m_colourScheme,
                   m_libraries.net, m_demo);
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
