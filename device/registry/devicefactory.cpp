#include "device/registry/devicefactory.h"

#include "device/registry/devicedetail.h"
#include "device/registry/loginresult.h"
#include "device/registry/passwordstrength.h"
#include "device/registry/upgradetools.h"
#include "device/store/devicerow.h"
#include "device/store/logging.h"
#include "files/applicationfolders.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

CDeviceFactory *instance = nullptr;

CDeviceFactory::BackEndCreators &registeredBackEnds()
{
    static CDeviceFactory::BackEndCreators creators;
    return creators;
}

CDeviceFactory::P2PAgent &registeredP2PAgent()
{
    static CDeviceFactory::P2PAgent agent;
    return agent;
}

/// Address and port of the host's end of the tunnel to the device behind a local port.
QString tunnelEnd(int localPort)
{
    return QStringLiteral("127.0.0.1:%1").arg(localPort);
}

/// The signals of the factory that forward forwardedSignals, in the same order.
constexpr std::tuple factorySignals(
    &CDeviceFactory::signalAddDeviceToTable, &CDeviceFactory::signalSearchCount,
    &CDeviceFactory::signalSearchDone, &CDeviceFactory::signalAddSingleDeviceToTable,
    &CDeviceFactory::signalUpdateSchedule, &CDeviceFactory::signalUpdateScheduleUpgradeByDocument,
    &CDeviceFactory::signalShowUpgradeFinishTip, &CDeviceFactory::signalRetToCopyConfig,
    &CDeviceFactory::signalRetToSystemConfig, &CDeviceFactory::signalSystemConfigEnablePassword,
    &CDeviceFactory::signalHighLevelLoginRet, &CDeviceFactory::signalGetDeviceCapRet,
    &CDeviceFactory::signalChangeVideoType, &CDeviceFactory::signalChangeVideoChannel,
    &CDeviceFactory::signalChangeEncodeChannel, &CDeviceFactory::signalConfirmEncodeConfig,
    &CDeviceFactory::signalSetChannelNameFinished, &CDeviceFactory::signalSnapPictureToFile,
    &CDeviceFactory::signalSnapPictureToFileAgain, &CDeviceFactory::signalTunnelBroken,
    &CDeviceFactory::signalImportProgress, &CDeviceFactory::signalSessionOpened,
    &CDeviceFactory::signalSessionChecked, &CDeviceFactory::signalSearchLimited,
    &CDeviceFactory::signalSearchProgress, &CDeviceFactory::signalSettingWritten);
static_assert(std::tuple_size_v<decltype(factorySignals)> == std::tuple_size_v<decltype(forwardedSignals)>,
              "the factory must forward every signal of a back end");

} // namespace

void CDeviceFactory::registerBackEnd(const QString &family, const BackEndCreator &creator)
{
    registeredBackEnds().insert(family, creator);
}

void CDeviceFactory::registerP2PAgent(const P2PAgent &agent)
{
    registeredP2PAgent() = agent;
}

CDeviceFactory *CDeviceFactory::getinstance()
{
    if (!instance)
        instance = new CDeviceFactory(registeredBackEnds(), registeredP2PAgent());
    return instance;
}

void CDeviceFactory::deleteInstance()
{
    delete instance;
    instance = nullptr;
    registeredBackEnds().clear();
    registeredP2PAgent() = {};
}

CDeviceFactory::CDeviceFactory(const BackEndCreators &creators, const P2PAgent &agent)
    : m_busyState([this] { return hasDeviceUpgrading(); }),
      m_p2pPorts(std::make_shared<P2PPorts>(
          agent.library, P2PSettings::read(ApplicationFolders::current().portAgentSettings()), agent.handler))
{
    for (auto creator = creators.cbegin(); creator != creators.cend(); ++creator) {
        const std::shared_ptr<CDeviceBase> backEnd = creator.value()();
        // Connected before the signals are forwarded: their receivers find the ports released.
        connect(backEnd.get(), &CDeviceBase::signalCDeviceAddDeviceToTable, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        connect(backEnd.get(), &CDeviceBase::signalCDeviceSearchDone, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        connect(backEnd.get(), &CDeviceBase::signalCDeviceHighLevelLoginRet, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        forwardSignals(*backEnd);
        backEnd->setP2PPorts(m_p2pPorts);
        m_backEnds.insert(creator.key(), backEnd);
    }
}

CDeviceFactory::CDeviceFactory(const BackEndCreators &creators) : CDeviceFactory(creators, P2PAgent()) {}

CDeviceFactory::~CDeviceFactory()
{
    for (const std::shared_ptr<CDeviceBase> &backEnd : std::as_const(m_backEnds)) {
        backEnd->factoryEnds();
        backEnd->setP2PPorts(
            nullptr); // the port agent ends with the factory, also if a back end is kept longer
    }
}

void CDeviceFactory::forwardSignals(const CDeviceBase &backEnd)
{
    const auto forwardEach = [&]<std::size_t... index>(std::index_sequence<index...>)
    {
        (connect(&backEnd, std::get<index>(forwardedSignals), this, std::get<index>(factorySignals)), ...);
    };
    forwardEach(std::make_index_sequence<std::tuple_size_v<decltype(forwardedSignals)>>());
}

QString CDeviceFactory::getDeviceDetailString(const QString &family, const QString &mac)
{
    return DeviceDetail::textOf(DeviceDetail::linesOf(getDeviceDetail(family, mac)));
}

bool CDeviceFactory::importDevice(const QString &family, const QString &path, QJSValue msg)
{
    ImportSummary summary;
    const bool imported = backEnd(family)->importDevice(path, summary);
    releaseUnneededP2PPorts(); // of replaced rows
    if (msg.isCallable()) {
        msg.call({summary.total, summary.errcount});
    } else if (msg.isObject()) {
        msg.setProperty(QStringLiteral("total"), summary.total);
        msg.setProperty(QStringLiteral("errcount"), summary.errcount);
    }
    return imported;
}

bool CDeviceFactory::hasDeviceUpgrading()
{
    return std::any_of(
        m_backEnds.cbegin(), m_backEnds.cend(),
        [](const std::shared_ptr<CDeviceBase> &backEnd) { return backEnd->hasDeviceUpgrading(); });
}

void CDeviceFactory::startSnap(const QString &family, const QVariant &channelNum, const QString &address)
{
    qCDebug(logDevice) << "startSnap"
                       << ":" << address << channelNum;
    snapPictureToFile(family, QStringLiteral("liveCapture"), channelNum, address);
    qCDebug(logDevice) << "endSnap"
                       << ":" << address << channelNum;
}

void CDeviceFactory::exitProgram()
{
    QCoreApplication::exit(0);
}

void CDeviceFactory::startSearch(const QString &family)
{
    if (m_busyState.areRowsInUse()) {
        qCWarning(logDevice) << "CDeviceFactory: no search, since running work needs the rows";
        Q_EMIT signalSearchDone();
        return;
    }
    backEnd(family)->startSearch();
}

int CDeviceFactory::setAddDevice(const QString &family, const QString &deviceId, const QString &,
                                 const QString &, const QString &port, int p2pPort)
{
    return m_backEnds.contains(family) ? m_p2pPorts->portFor(deviceId, port.toInt(), p2pPort) : 0;
}

void CDeviceFactory::setPluginPort(const QString &family, const QString &mac, int devp2pPort)
{
    updataDeviceInfo(family, DeviceRowKey::devp2pPort, QString::number(devp2pPort), mac, QString());
}

void CDeviceFactory::setDeleteDevice(const QString &family, const QString &mac, const QString &ipvision)
{
    const QVariantMap row = getDeviceDetail(family, mac);
    backEnd(family)->setDeleteDevice(mac, ipvision);
    releaseP2PPortsOf(family, {{mac, row}});
}

void CDeviceFactory::setBatchDeleteDevice(const QString &family, const QVariantMap &macs,
                                          const QString &ipversion)
{
    QVariantMap rows;
    for (auto mac = macs.keyBegin(); mac != macs.keyEnd(); ++mac)
        rows.insert(*mac, getDeviceDetail(family, *mac));
    backEnd(family)->setBatchDeleteDevice(macs, ipversion);
    releaseP2PPortsOf(family, rows);
}

void CDeviceFactory::releaseP2PPortsOf(const QString &family, const QVariantMap &rows)
{
    // The back end may have refused to delete some.
    for (auto row = rows.cbegin(); row != rows.cend(); ++row) {
        if (getDeviceDetail(family, row.key()).isEmpty())
            noteP2PPortsOf(row->toMap());
    }
    releaseUnneededP2PPorts();
}

void CDeviceFactory::noteP2PPortsOf(const QVariantMap &row)
{
    if (row.value(DeviceRowKey::loginType).toString() != QLatin1String("P2P"))
        return;
    const QString ipport = row.value(DeviceRowKey::ipport).toString();
    m_p2pPorts->note(QStringView(ipport).mid(ipport.lastIndexOf(QLatin1Char(':')) + 1).toInt());
}

void CDeviceFactory::releaseUnneededP2PPorts()
{
    m_p2pPorts->releaseUnneeded([this](int port) { return isListedAt(port) || isInUse(port); });
}

bool CDeviceFactory::isListedAt(int p2pPort) const
{
    return std::any_of(m_backEnds.cbegin(), m_backEnds.cend(),
                       [ipport = tunnelEnd(p2pPort)](const std::shared_ptr<CDeviceBase> &backEnd) {
                           return !backEnd->getDeviceInfo(ipport).isEmpty();
                       });
}

bool CDeviceFactory::isInUse(int p2pPort) const
{
    return std::any_of(m_backEnds.cbegin(), m_backEnds.cend(),
                       [ipport = tunnelEnd(p2pPort)](const std::shared_ptr<CDeviceBase> &backEnd) {
                           return backEnd->isInSession(ipport);
                       });
}

int CDeviceFactory::getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType,
                                   const QString &devp2pPort)
{
    const int result =
        backEnd(family)->getLoginDevice(address, account, password, port, loginType, devp2pPort);
    // The new row may have replaced a row of the device with other ports.
    if (result == resultCode(LoginResult::Success)) {
        noteP2PPortsOf(getDeviceInfo(family, tunnelEnd(port.toInt())));
        releaseUnneededP2PPorts();
    }
    return result;
}

int CDeviceFactory::getPassWordType(const QString &password)
{
    return passwordStrength(password);
}

bool CDeviceFactory::openTemplate()
{
    const QString path = ApplicationFolders::current().program() + QStringLiteral("/template/") +
                         UpgradeTools::templateFileName();
    return QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QString CDeviceFactory::getErrorName(int error)
{
    return resultName(error);
}

void CDeviceFactory::addP2PPort(int p2pPort, int webPort)
{
    m_p2pPorts->pair(p2pPort, webPort);
}

int CDeviceFactory::getP2PWebPort(int port)
{
    return m_p2pPorts->webPortOf(port);
}

QVariantList CDeviceFactory::getDays(int month)
{
    const int count = QDate(QDate::currentDate().year(), month, 1).daysInMonth();
    QVariantList days;
    for (int day = 1; day <= count; ++day)
        days.append(day);
    return days;
}

void CDeviceFactory::releaseP2PPort(int p2pPort)
{
    if (isInUse(p2pPort))
        m_p2pPorts->note(p2pPort);
    else
        m_p2pPorts->releaseDevice(p2pPort);
}

QString CDeviceFactory::p2pFault()
{
    return m_p2pPorts->faultText();
}
