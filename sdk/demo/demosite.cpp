#include "sdk/demo/demosite.h"

#include "sdk/clock.h"
#include "sdk/configtext/configtextlibrary.h"
#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demop2pagentlibrary.h"
#include "sdk/demo/http/httpport.h"
#include "sdk/demo/http/httpresponder.h"
#include "sdk/demo/scene/fleetgenerator.h"
#include "sdk/demo/scene/scenereader.h"
#include "sdk/demo/site/logging.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

// Outside every namespace, as Q_INIT_RESOURCE requires. The reference keeps the linker from dropping the
// resources of this static library.
static void initialiseSceneResources()
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
        initialiseSceneResources();
        return SceneReader::readFile(u":/demo/scenes/%1.json"_s.arg(nameOrFile), error);
    }
    if (nameOrFile.startsWith(fleetPrefix))
        return generatedFleet(nameOrFile, error);
    // A name that looks like a path is treated as one, so that the error names the file.
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
    QString problem;
    const std::optional<Scene> scene = sceneOf(sceneNameOrFile, &problem);
    if (error)
        *error = problem;
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
    : SiteState(scene, std::move(clock)), m_config(std::make_shared<ConfigTextLibrary>()),
      m_httpResponder(std::make_unique<HttpResponder>(*this)),
      m_portAgent(std::make_unique<DemoP2PAgentLibrary>(*this, *m_httpResponder)),
      m_net(std::make_unique<DemoNetLibrary>(*this))
{
}

DemoSite::~DemoSite() = default;

SdkLibraries DemoSite::libraries()
{
    SdkLibraries libraries;
    // These share the ownership of the site, which owns them.
    libraries.net = std::shared_ptr<NetLibrary>(shared_from_this(), m_net.get());
    libraries.p2pAgent = std::shared_ptr<P2PAgentLibrary>(shared_from_this(), m_portAgent.get());
    libraries.config = m_config;
    libraries.clock = sharedClock();
    return libraries;
}

std::optional<Tunnel> DemoSite::tunnel(int localPort) const
{
    return m_portAgent->tunnel(localPort);
}

QString DemoSite::httpProxy()
{
    const std::lock_guard lock(m_httpProxyMutex);
    if (!m_httpProxy)
        m_httpProxy = HttpPort::open(*m_httpResponder, HttpPort::Role::Proxy, 0);
    return m_httpProxy ? u"http://127.0.0.1:%1"_s.arg(m_httpProxy->port()) : QString();
}

} // namespace sdk::demo
