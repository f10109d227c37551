#include "app/shell.h"

#include "app/devicelibraries.h"
#include "app/languages.h"
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
#include "device/registry/devicestore.h"
#include "favourites/accountstore.h"
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

constexpr int sceneFailed = 1;

/// Translation files are looked up where the program was started, not where it stands.
QString translationPath(const QString &code)
{
    return QLatin1String("./language/") + code + QLatin1String(".qm");
}

/// The account of most devices of a site, with its password; empty when none has an account.
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
    QT_WARNING_DISABLE_DEPRECATED // without effect in this toolkit version, which always scales
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QT_WARNING_POP
}

Shell::Shell(CommandLine commandLine) : m_commandLine(std::move(commandLine)) {}

Shell::~Shell()
{
    // The scene's windows go first: their bindings must not see the objects vanish that they read. The
    // batches, which the engine owns, use the factory until they go.
    if (m_engine)
        qDeleteAll(m_engine->rootObjects());
    m_engine.reset();
    AudioOutput::awaitRelease();
    m_colourScheme.reset();
    CLocalConfig::deleteInstance();
    CGIConfigManage::deleteInstance(); // asks the factory
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
    if (CLocalConfig::getinstance()->anotherInstanceRuns()) {
        OMessageBox::show(QObject::tr("提示"), QObject::tr("应用程序已经运行!"));
        QCoreApplication::exit(0);
        return 0;
    }
    if (!chooseLibraries())
        return sceneFailed;
    chooseCertificates();
    chooseAccounts();
    registerBackEnds();
    VideoItem::registerLibraries(m_libraries);
    loadScene();
    return std::nullopt;
}

void Shell::loadTranslators()
{
    const QString code = resolveLanguage(*CLocalConfig::getinstance(), QLocale::system().language());
    if (code != QLatin1String("en_US") && code != QLatin1String("zh_CN") &&
        loadTranslation(m_fallbackTranslator, translationPath(QStringLiteral("en_US")))) {
        QCoreApplication::installTranslator(&m_fallbackTranslator);
    }
    // Installed last, it is searched first.
    if (loadTranslation(m_mainTranslator, translationPath(code)))
        QCoreApplication::installTranslator(&m_mainTranslator);
}

bool Shell::chooseLibraries()
{
    m_libraries.clock = std::make_shared<sdk::SystemClock>();
    m_libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
    QString complaint;
    if (!m_commandLine.demo &&
        bindDeviceLibraries(QCoreApplication::applicationDirPath(), m_libraries, complaint)) {
        if (complaint.isEmpty())
            return true;
        qCCritical(logApp).noquote() << "The device libraries cannot be used:" << complaint;
        OMessageBox::show(QObject::tr("提示"), complaint);
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
        // What the scene file says is quoted in it, however long and odd.
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
    // Without a port of its own the site is still the only one that may be asked: no real address is.
    const QString proxy = site->httpProxy();
    CGIConfigManage::getinstance()->setProxy(proxy.isEmpty() ? QStringLiteral("http://127.0.0.1:9") : proxy);
    return true;
}

void Shell::chooseCertificates()
{
    // Simulated devices make other keys at each start, and have the addresses of real ones.
    const QString path = m_commandLine.demo
                             ? QString()
                             : QCoreApplication::applicationDirPath() + QStringLiteral("/certificates.json");
    m_certificates = std::make_shared<CertificateStore>(path);
    if (m_libraries.net)
        m_libraries.net->NetSetCertificateHandler(&CertificateStore::handle, m_certificates.get());
    CGIConfigManage::getinstance()->setCertificateHandler(&CertificateStore::handle, m_certificates.get());
}

void Shell::chooseAccounts()
{
    // The passwords of simulated devices are at each start what the scene says, and some have the MACs of
    // real ones.
    const QString path = m_commandLine.demo
                             ? QString()
                             : QCoreApplication::applicationDirPath() + QStringLiteral("/accounts.json");
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
        const UpgradeLimits upgradeLimits{.atOnce = CLocalConfig::getinstance()->upgradesAtOnce()};
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

void Shell::loadScene()
{
    QQuickStyle::setStyle(QStringLiteral("Basic")); // the program's own controls are drawn on its templates
    m_engine = std::make_unique<QQmlApplicationEngine>();
    m_engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    publishToScene(*m_engine, *m_batchEngine, m_deviceStore, m_certificates, m_accounts, *m_colourScheme,
                   m_libraries.net, m_demo);
    // What the answers of a search were read with is freed in pieces between the rows.
    QObject::connect(CDeviceFactory::getinstance(), &CDeviceFactory::signalSearchDone,
                     CDeviceFactory::getinstance(), &returnFreedMemory);
    m_engine->load(QUrl(QStringLiteral("qrc:/qt/qml/configtools/main.qml")));
    if (auto *window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().value(0))) {
        const auto noteFirst = [] {
            qCDebug(logApp) << "first picture";
        };
        QObject::connect(window, &QQuickWindow::frameSwapped, window, noteFirst, Qt::SingleShotConnection);
    }
}
