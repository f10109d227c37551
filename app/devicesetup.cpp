#include "app/devicesetup.h"

#include "app/devicelibraries.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicehik.h"
#include "device/registry/deviceol.h"
#include "sdk/clock.h"
#include "sdk/configtext/configtextlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"
#include "sdk/netlibrary.h"
#include "sdk/onvif/onvifnetlibrary.h"

#include <algorithm>
#include <utility>

namespace {

/// The account of most devices of a site; nullopt if no device has one.
std::optional<DeviceAccount> usualAccount(const sdk::demo::DemoSite &site)
{
    QHash<std::pair<QString, QString>, int> devices;
    site.forEachDevice([&devices](const sdk::demo::SceneDevice &device) {
        if (!device.accounts.isEmpty())
            ++devices[{device.accounts.constFirst().user, device.accounts.constFirst().password}];
    });
    const auto most = std::max_element(devices.cbegin(), devices.cend());
    return most == devices.cend()
               ? std::nullopt
               : std::optional(DeviceAccount{.account = most.key().first, .password = most.key().second});
}

} // namespace

DeviceSetup::DeviceSetup(Options options) : m_options(std::move(options)) {}

std::optional<DeviceSetup::Problem> DeviceSetup::open()
{
    m_libraries.clock = std::make_shared<sdk::SystemClock>();
    m_libraries.decoder = std::make_shared<sdk::ffmpeg::FfmpegDecoderLibrary>();
    QString bindingError;
    if (m_options.isDemo) {
        if (std::optional<Problem> problem = openSite())
            return problem;
    } else if (bindDeviceLibraries(m_options.programFolder, m_libraries, bindingError)) {
        if (!bindingError.isEmpty())
            return Problem{.isSite = false, .text = bindingError};
    } else {
        m_libraries.net = std::make_shared<sdk::onvif::OnvifNetLibrary>();
        m_libraries.config = std::make_shared<sdk::ConfigTextLibrary>();
    }
    createStores();
    return std::nullopt;
}

std::optional<DeviceSetup::Problem> DeviceSetup::openSite()
{
    QString error;
    const std::shared_ptr<sdk::demo::DemoSite> site =
        sdk::demo::DemoSite::open(m_options.scene, m_libraries.clock, &error);
    if (!site) {
        // The error may quote the scene file, whose strings may be long.
        constexpr qsizetype longestError = 400;
        error = error.simplified();
        if (error.size() > longestError)
            error = error.left(longestError) + QChar(0x2026);
        return Problem{.isSite = true, .text = error};
    }
    m_siteAccount = usualAccount(*site);
    const std::shared_ptr<sdk::DecoderLibrary> decoder = std::move(m_libraries.decoder);
    m_libraries = site->libraries();
    m_libraries.decoder = decoder;
    m_proxy = site->httpProxy();
    // A site without a proxy gets an address where nothing listens, so that no real device is reached.
    if (m_proxy.isEmpty())
        m_proxy = QStringLiteral("http://127.0.0.1:9");
    return std::nullopt;
}

void DeviceSetup::createStores()
{
    // Not stored for simulated devices: each start resets their passwords and changes their keys, and some
    // have addresses and MACs of real ones.
    const auto path = [this](const QString &name) {
        return m_options.isDemo ? QString() : m_options.storeFolder + QLatin1Char('/') + name;
    };
    m_certificates = std::make_shared<CertificateStore>(path(QStringLiteral("certificates.json")));
    if (m_libraries.net)
        m_libraries.net->NetSetCertificateHandler(&CertificateStore::handle, m_certificates.get());
    m_accounts = std::make_shared<AccountStore>(path(QStringLiteral("accounts.json")));
    m_deviceStore = std::make_shared<DeviceStore>(m_libraries.clock);
    m_batchEngine = std::make_shared<BatchEngine>(m_libraries.clock);
}

void DeviceSetup::prepare(HttpTransport &transport) const
{
    if (!m_proxy.isEmpty())
        transport.setProxy(m_proxy);
    transport.setCertificateHandler(&CertificateStore::handle, m_certificates.get());
}

void DeviceSetup::registerBackEnds(const std::function<SearchSettings()> &searchSettings,
                                   const UpgradeLimits &upgradeLimits) const
{
    CDeviceFactory::registerBackEnd(QStringLiteral("dh"), [store = m_deviceStore, libraries = m_libraries,
                                                           engine = m_batchEngine, accounts = m_accounts,
                                                           searchSettings, upgradeLimits] {
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
