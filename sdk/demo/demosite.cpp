#include "sdk/demo/demosite.h"

#include "sdk/clock.h"
#include "sdk/configtext/configtextlibrary.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "sdk/demo/fleetgenerator.h"
#include "sdk/demo/internal/httpport.h"
#include "sdk/demo/internal/httpresponder.h"
#include "sdk/demo/internal/logging.h"
#include "sdk/demo/scenereader.h"

#include <QFileInfo>

#include <set>

using namespace Qt::StringLiterals;

// Outside every namespace, as Q_INIT_RESOURCE asks. It names the resources, so that a program that links this
// library statically cannot lose them.
static void takeInSceneResources()
{
    Q_INIT_RESOURCE(demoscenes);
}

namespace sdk::demo {

namespace {

constexpr QLatin1String fleetPrefix("fleet:");

const QStringList &builtInScenes()
{
    static const QStringList names = {u"office"_s, u"factory"_s, u"faulty"_s};
    return names;
}

std::optional<Scene> generatedFleet(const QString &name, QString *error)
{
    bool isNumber = false;
    const int count = name.sliced(fleetPrefix.size()).toInt(&isNumber);
    if (isNumber && count >= 1 && count <= maximumSceneDevices)
        return FleetGenerator::generate(count);
    *error = u"\"%1\": a fleet needs a number of devices from 1 to %2, as in \"fleet:500\""_s.arg(
        name, QString::number(maximumSceneDevices));
    return std::nullopt;
}

std::optional<Scene> sceneOf(const QString &nameOrFile, QString *error)
{
    if (builtInScenes().contains(nameOrFile)) {
        takeInSceneResources();
        return SceneReader::readFile(u":/demo/scenes/%1.json"_s.arg(nameOrFile), error);
    }
    if (nameOrFile.startsWith(fleetPrefix))
        return generatedFleet(nameOrFile, error);
    // What looks like a path is taken for one, so that a slip in it is told as such.
    if (nameOrFile.contains(u'/') || nameOrFile.endsWith(u".json") || QFileInfo::exists(nameOrFile))
        return SceneReader::readFile(nameOrFile, error);
    *error = u"There is no scene \"%1\"; known are %2, or the path of a scene file"_s.arg(
        nameOrFile, DemoSite::knownScenes().join(u", "_s));
    return std::nullopt;
}

} // namespace

QStringList DemoSite::knownScenes()
{
    return builtInScenes() + QStringList{u"fleet:N"_s};
}

std::shared_ptr<DemoSite> DemoSite::open(const QString &sceneNameOrFile, std::shared_ptr<Clock> clock,
                                         QString *error)
{
    QString complaint;
    const std::optional<Scene> scene = sceneOf(sceneNameOrFile, &complaint);
    if (error)
        *error = complaint;
    if (!scene)
        return nullptr;
    qCDebug(demoLog, "Scene \"%ls\": %lld devices", qUtf16Printable(sceneNameOrFile),
            static_cast<long long>(scene->devices.size()));
    return create(*scene, std::move(clock));
}

std::shared_ptr<DemoSite> DemoSite::create(const Scene &scene, std::shared_ptr<Clock> clock)
{
    // Not make_shared: the constructor is private.
    return std::shared_ptr<DemoSite>(new DemoSite(scene, std::move(clock)));
}

DemoSite::DemoSite(const Scene &scene, std::shared_ptr<Clock> clock)
    : m_title(scene.title), m_description(scene.description), m_localAddress(scene.localAddress),
      m_localIpv6(scene.localIpv6), m_clock(std::move(clock)),
      m_config(std::make_shared<ConfigTextLibrary>()),
      m_httpResponder(std::make_unique<HttpResponder>(*this)),
      m_portAgent(std::make_unique<DemoP2PAgentLibrary>(*this)),
      m_net(std::make_unique<DemoNetLibrary>(*this))
{
    m_devices.reserve(scene.devices.size());
    for (const SceneDevice &device : scene.devices)
        setDevice(device);
}

DemoSite::~DemoSite() = default;

SdkLibraries DemoSite::libraries()
{
    SdkLibraries libraries;
    // These share the ownership of the site, which owns them.
    libraries.net = std::shared_ptr<NetLibrary>(shared_from_this(), m_net.get());
    libraries.p2pAgent = std::shared_ptr<P2PAgentLibrary>(shared_from_this(), m_portAgent.get());
    libraries.config = m_config;
    libraries.clock = m_clock;
    return libraries;
}

QList<SceneDevice> DemoSite::devices() const
{
    const std::lock_guard lock(m_mutex);
    return m_devices;
}

std::optional<SceneDevice> DemoSite::device(const QString &mac) const
{
    const std::lock_guard lock(m_mutex);
    const qsizetype place = placeLocked(mac);
    return place < 0 ? std::nullopt : std::optional(m_devices.at(place));
}

void DemoSite::visitDevices(const std::function<void(const SceneDevice &)> &visitor) const
{
    const std::lock_guard lock(m_mutex);
    for (const SceneDevice &device : m_devices)
        visitor(device);
}

void DemoSite::visitDevicesAt(const QStringList &addresses,
                              const std::function<void(const SceneDevice &)> &visitor) const
{
    const std::lock_guard lock(m_mutex);
    std::set<qsizetype> places;
    for (const QString &address : addresses) {
        for (const QString &mac : m_addresses.macsAt(address))
            places.insert(placeLocked(mac));
    }
    for (const qsizetype place : places)
        visitor(m_devices.at(place));
}

void DemoSite::setDevice(const SceneDevice &device)
{
    const std::lock_guard lock(m_mutex);
    SceneDevice lowerCase = device;
    lowerCase.mac = device.mac.toLower();
    const qsizetype place = placeLocked(lowerCase.mac);
    if (place >= 0) {
        m_addresses.remove(m_devices.at(place));
        m_devices[place] = lowerCase;
    } else {
        m_placeOfMac.insert(lowerCase.mac, m_devices.size());
        m_devices.append(lowerCase);
    }
    m_addresses.add(lowerCase);
}

bool DemoSite::removeDevice(const QString &mac)
{
    const std::lock_guard lock(m_mutex);
    const qsizetype place = placeLocked(mac);
    if (place < 0)
        return false;
    m_addresses.remove(m_devices.at(place));
    m_devices.removeAt(place);
    m_placeOfMac.remove(mac.toLower());
    for (qsizetype later = place; later < m_devices.size(); ++later)
        m_placeOfMac[m_devices.at(later).mac] = later;
    return true;
}

bool DemoSite::changeDevice(
    const QString &mac,
    const std::function<void(SceneDevice &device, const DeviceAddresses &addresses)> &change)
{
    const std::lock_guard lock(m_mutex);
    const qsizetype place = placeLocked(mac);
    if (place < 0)
        return false;
    SceneDevice &device = m_devices[place];
    const SceneDevice before = device;
    change(device, m_addresses);
    if (device.address != before.address || device.ipv6 != before.ipv6) {
        m_addresses.remove(before);
        m_addresses.add(device);
    }
    return true;
}

bool DemoSite::setFault(const QString &mac, const FaultSetting &setting)
{
    return changeDevice(mac, [&setting](SceneDevice &device, const DeviceAddresses &) {
        device.faults.removeIf(
            [&setting](const FaultSetting &other) { return other.fault == setting.fault; });
        device.faults.append(setting);
    });
}

bool DemoSite::clearFault(const QString &mac, Fault fault)
{
    return changeDevice(mac,
                        [fault](SceneDevice &device, const DeviceAddresses &) { device.clearFault(fault); });
}

QString DemoSite::httpProxy()
{
    const std::lock_guard lock(m_httpProxyMutex);
    if (!m_httpProxy)
        m_httpProxy = HttpPort::open(*m_httpResponder, HttpPort::Role::Proxy, 0);
    return m_httpProxy ? u"http://127.0.0.1:%1"_s.arg(m_httpProxy->port()) : QString();
}

QString DemoSite::localAddressFor(const SceneDevice &device, int ipVersion) const
{
    if (ipVersion == 6)
        return m_localIpv6;
    return device.address.startsWith(u"127.") ? u"127.0.0.1"_s : m_localAddress;
}

qsizetype DemoSite::placeLocked(const QString &mac) const
{
    return m_placeOfMac.value(mac.toLower(), -1);
}

} // namespace sdk::demo
