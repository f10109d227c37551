#include "app/publication.h"

#include "app/colourscheme.h"
#include "app/crashreports.h"
#include "app/filedialogs.h"
#include "app/localconfig.h"
#include "app/timezonetext.h"
#include "app/viewmemory.h"
#include "cgi/cgibatches.h"
#include "cgi/cgiconfigmanage.h"
#include "cgi/webpages.h"
#include "device/batch/addingbatches.h"
#include "device/batch/batches.h"
#include "device/batch/upgradebatches.h"
#include "device/models/accountlist.h"
#include "device/models/certificatelist.h"
#include "device/registry/devicefactory.h"
#include "device/search/searchreports.h"
#include "device/sites/knowndevices.h"
#include "device/store/devicenotes.h"
#include "files/applicationfolders.h"
#include "report/sitereport.h"
#include "secrets/secretvault.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QRegularExpression>

namespace {

/// The name of the file with the known devices of a scene, without suffix.
QString siteFileOf(const QString &scene)
{
    QString name = QFileInfo(scene.isEmpty() ? QStringLiteral("office") : scene).completeBaseName().left(60);
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]+"));
    name.replace(others, QStringLiteral("-"));
    return QStringLiteral("site-demo-") + name;
}

} // namespace

void publishToScene(QQmlApplicationEngine &engine, BatchEngine &batchEngine,
                    const std::shared_ptr<DeviceStore> &store,
                    const std::shared_ptr<CertificateStore> &certificates,
                    const std::shared_ptr<AccountStore> &accounts, ColourScheme &colourScheme,
                    const std::shared_ptr<sdk::NetLibrary> &net, const DemoNotice &demo, SecretVault *vault)
{
    // Shell deletes the singletons, after the engine.
    QQmlContext *context = engine.rootContext();
    context->setContextProperty(QStringLiteral("appDir"), QCoreApplication::applicationDirPath());
    const AccountList::Defaults defaults = {
        .read =
            [] {
                const CLocalConfig &config = *CLocalConfig::getinstance();
                return DeviceAccount{.account = config.getSearchConfigUsrename(),
                                     .password = config.getSearchConfigPass()};
            },
        .write =
            [](const DeviceAccount &account) {
                CLocalConfig::getinstance()->setSearchConfigUsername(account.account);
                CLocalConfig::getinstance()->setSearchConfigPass(account.password);
                CDeviceFactory::getinstance()->setDefaultAccount(QStringLiteral("dh"), account.account,
                                                                 account.password);
            }};
    auto *accountList = new AccountList(*CDeviceFactory::getinstance(), accounts, defaults, &engine);
    accountList->setFavourites(ApplicationFolders::current().favourites());
    context->setContextProperty(QStringLiteral("AccountsApi"), accountList);
    auto *batches = new Batches(
        *CDeviceFactory::getinstance(), batchEngine,
        [] { return CLocalConfig::getinstance()->parallelDevices(); }, &engine);
    batches->keepFailedIn(store);
    QObject::connect(accountList, &AccountList::changed, batches, &Batches::noteAccounts);
    context->setContextProperty(QStringLiteral("BatchesApi"), batches);
    auto *changes = new VisitChanges(*CDeviceFactory::getinstance(), *batches,
                                     VisitChanges::ImagesBefore::Taken, batches);
    context->setContextProperty(QStringLiteral("SiteReportApi"),
                                new SiteReport(*CDeviceFactory::getinstance(), *batches, changes, batches));
    context->setContextProperty(QStringLiteral("AddingBatchesApi"),
                                new AddingBatches(*CDeviceFactory::getinstance(), *batches, batches));
    context->setContextProperty(QStringLiteral("CertificatesApi"),
                                new CertificateList(certificates, &engine));
    context->setContextProperty(QStringLiteral("CgiBatchesApi"),
                                new CgiBatches(*CDeviceFactory::getinstance(), *batches,
                                               CGIConfigManage::getinstance()->surroundings(), batches));
    context->setContextProperty(QStringLiteral("UpgradeBatchesApi"),
                                new UpgradeBatches(
                                    *CDeviceFactory::getinstance(), *batches,
                                    [] { return CLocalConfig::getinstance()->parallelUpgrades(); }, batches));
    context->setContextProperty(QStringLiteral("BusyStateApi"), CDeviceFactory::getinstance()->busyState());
    context->setContextProperty(QStringLiteral("CDeviceFactoryApi"), CDeviceFactory::getinstance());
    context->setContextProperty(QStringLiteral("CGIConfigManageApi"), CGIConfigManage::getinstance());
    context->setContextProperty(QStringLiteral("ColourSchemeApi"), &colourScheme);
    context->setContextProperty(QStringLiteral("CrashReportsApi"),
                                new CrashReports(ApplicationFolders::current().crashReports(), &engine));
    context->setContextProperty(QStringLiteral("FileDialogsApi"), new FileDialogs(&engine));
    context->setContextProperty(QStringLiteral("LocalConfigApi"), CLocalConfig::getinstance());
    context->setContextProperty(QStringLiteral("SecretVaultApi"), vault);
    if (vault) {
        // The user has unlocked the service after the first search has begun.
        QObject::connect(vault, &SecretVault::loaded, accountList, [read = defaults.read] {
            const DeviceAccount account = read();
            CDeviceFactory::getinstance()->setDefaultAccount(QStringLiteral("dh"), account.account,
                                                             account.password);
        });
    }
    context->setContextProperty(QStringLiteral("SearchReportsApi"), new SearchReports(net, &engine));
    context->setContextProperty(
        QStringLiteral("WebPagesApi"),
        new WebPages(CGIConfigManage::getinstance()->surroundings().transport, &engine));
    // Simulated devices may have the MACs of real ones.
    const QString notes = demo.isShown ? QStringLiteral("/notes-demo.json") : QStringLiteral("/notes.json");
    auto *deviceNotes = new DeviceNotes(ApplicationFolders::current().data() + notes, &engine);
    context->setContextProperty(QStringLiteral("DeviceNotesApi"), deviceNotes);
    auto *known = new KnownDevices(store,
                                   {.folder = ApplicationFolders::current().data(),
                                    .prefix = demo.isShown ? siteFileOf(demo.scene) : QStringLiteral("site")},
                                   &engine);
    known->setNotes(deviceNotes);
    context->setContextProperty(QStringLiteral("KnownDevicesApi"), known);
    context->setContextProperty(QStringLiteral("ViewMemoryApi"),
                                new ViewMemory(CLocalConfig::getinstance()->settingsPath(), &engine));
    context->setContextProperty(QStringLiteral("systemTimeZone"), systemTimeZoneText());
    context->setContextProperty(QStringLiteral("deviceLibraryInstalled"), net != nullptr);
    context->setContextProperty(QStringLiteral("demoSite"), demo.isShown);
    context->setContextProperty(QStringLiteral("demoSiteAccount"), demo.account);
}
