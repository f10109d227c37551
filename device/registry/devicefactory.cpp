#include "device/registry/devicefactory.h"

#include "device/registry/devicedetail.h"
#include "device/registry/devicerow.h"
#include "device/registry/logging.h"
#include "device/registry/loginresult.h"
#include "device/registry/passwordstrength.h"
#include "device/registry/upgradetools.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMetaMethod>
#include <QUrl>

#include <algorithm>

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

/// The factory's name for a signal of a back end: "signalCDeviceXxx" is "signalXxx"; other names are the
/// same.
QByteArray twinOf(const QByteArray &backEndSignal)
{
    constexpr QByteArrayView backEndPrefix("signalCDevice");
    return backEndSignal.startsWith(backEndPrefix) ? "signal" + backEndSignal.mid(backEndPrefix.size())
                                                   : backEndSignal;
}

/// Where this computer reaches the device behind a local port.
QString tunnelEnd(int localPort)
{
    return QStringLiteral("127.0.0.1:%1").arg(localPort);
}

/// What the SIGNAL() macro makes of a signature.
QByteArray asSignal(const QByteArray &signature)
{
    return QByteArray::number(QSIGNAL_CODE) + signature;
}

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
      m_p2pPorts(agent.library, P2PSettings::read(QStringLiteral("./p2p.ini")), agent.handler)
{
    for (auto creator = creators.cbegin(); creator != creators.cend(); ++creator) {
        const std::shared_ptr<CDeviceBase> backEnd = creator.value()();
        // Before the relay: a receiver of the factory's signals finds the ports released.
        connect(backEnd.get(), &CDeviceBase::signalCDeviceAddDeviceToTable, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        connect(backEnd.get(), &CDeviceBase::signalCDeviceSearchDone, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        connect(backEnd.get(), &CDeviceBase::signalCDeviceHighLevelLoginRet, this,
                &CDeviceFactory::releaseUnneededP2PPorts);
        relaySignals(*backEnd);
        backEnd->setP2PPorts(&m_p2pPorts);
        m_backEnds.insert(creator.key(), backEnd);
    }
}

CDeviceFactory::CDeviceFactory(const BackEndCreators &creators) : CDeviceFactory(creators, P2PAgent()) {}

CDeviceFactory::~CDeviceFactory()
{
    // A running operation may hold a back end a little longer than the factory and its ports are there.
    for (const std::shared_ptr<CDeviceBase> &backEnd : std::as_const(m_backEnds)) {
        backEnd->factoryEnds();
        backEnd->setP2PPorts(nullptr);
    }
}

void CDeviceFactory::relaySignals(const CDeviceBase &backEnd)
{
    const QMetaObject &base = CDeviceBase::staticMetaObject;
    for (int index = base.methodOffset(); index < base.methodCount(); ++index) {
        const QMetaMethod method = base.method(index);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        const QByteArray signature = method.methodSignature();
        if (!connect(&backEnd, asSignal(signature).constData(), this,
                     asSignal(twinOf(signature)).constData()))
            qCCritical(logDevice) << "CDeviceFactory: no twin for" << signature;
    }
}

QString CDeviceFactory::getDeviceDetailString(const QString &family, const QString &mac)
{
    return DeviceDetail::textOf(DeviceDetail::linesOf(getDeviceDetail(family, mac)));
}

bool CDeviceFactory::importDevice(const QString &family, const QString &path, QJSValue msg)
{
    ImportSummary summary;
    const std::shared_ptr<CDeviceBase> backEnd = m_backEnds.value(family);
    if (!backEnd)
        return false;
    const bool imported = backEnd->importDevice(path, summary);
    releaseUnneededP2PPorts(); // of rows that lines have replaced
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
    if (m_busyState.areRowsHeld()) {
        qCWarning(logDevice) << "CDeviceFactory: a search would remove rows that are in use";
        Q_EMIT signalSearchDone();
        return;
    }
    forward(family, &CDeviceBase::startSearch);
}

void CDeviceFactory::setSearchByIPInfo(const QString &family, quint32 beginip, quint32 endip)
{
    forward(family, &CDeviceBase::setSearchByIPInfo, beginip, endip);
}

QVariantList CDeviceFactory::filterData(const QString &family, const QString &filtertype,
                                        const QString &searchtext)
{
    return forward(family, &CDeviceBase::filterData, filtertype, searchtext);
}

QVariantList CDeviceFactory::filterDataIPV6(const QString &family, const QString &filtertype,
                                            const QString &searchtext)
{
    return forward(family, &CDeviceBase::filterDataIPV6, filtertype, searchtext);
}

void CDeviceFactory::modifyIP(const QString &family, const QString &mac, const QString &newip,
                              const QString &newsubmask, const QString &newgateway, bool dhcpON)
{
    forward(family, &CDeviceBase::modifyIP, mac, newip, newsubmask, newgateway, dhcpON);
}

void CDeviceFactory::setDefaultAccount(const QString &family, const QString &account, const QString &password)
{
    forward(family, &CDeviceBase::setDefaultAccount, account, password);
}

void CDeviceFactory::setFollowingAccount(const QString &family, const QString &account,
                                         const QString &password)
{
    forward(family, &CDeviceBase::setFollowingAccount, account, password);
}

QVariantMap CDeviceFactory::accountOf(const QString &family, const QString &name)
{
    return forward(family, &CDeviceBase::accountOf, name);
}

void CDeviceFactory::setInitAccount(const QString &family, const QString &mac, const QString &account,
                                    const QString &password)
{
    forward(family, &CDeviceBase::setInitAccount, mac, account, password);
}

int CDeviceFactory::setAddDevice(const QString &family, const QString &deviceId, const QString &,
                                 const QString &, const QString &port, int p2pPort)
{
    return m_backEnds.contains(family) ? m_p2pPorts.portFor(deviceId, port.toInt(), p2pPort) : 0;
}

void CDeviceFactory::setPluginPort(const QString &family, const QString &mac, int devp2pPort)
{
    updataDeviceInfo(family, DeviceRowKey::devp2pPort, QString::number(devp2pPort), mac, QString());
}

void CDeviceFactory::setDeleteDevice(const QString &family, const QString &mac, const QString &ipvision)
{
    const QVariantMap row = getDeviceDetail(family, mac);
    forward(family, &CDeviceBase::setDeleteDevice, mac, ipvision);
    releaseP2PPortsOf(family, {{mac, row}});
}

void CDeviceFactory::setBatchDeleteDevice(const QString &family, const QVariantMap &macs,
                                          const QString &ipversion)
{
    QVariantMap rows;
    for (auto mac = macs.keyBegin(); mac != macs.keyEnd(); ++mac)
        rows.insert(*mac, getDeviceDetail(family, *mac));
    forward(family, &CDeviceBase::setBatchDeleteDevice, macs, ipversion);
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
    m_p2pPorts.note(QStringView(ipport).mid(ipport.lastIndexOf(QLatin1Char(':')) + 1).toInt());
}

void CDeviceFactory::releaseUnneededP2PPorts()
{
    m_p2pPorts.releaseUnneeded([this](int port) { return isListedAt(port) || isInUse(port); });
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

QVariantMap CDeviceFactory::getDeviceDetail(const QString &family, const QString &mac)
{
    return forward(family, &CDeviceBase::getDeviceDetail, mac);
}

QVariantMap CDeviceFactory::getDeviceInfo(const QString &family, const QString &ipport)
{
    return forward(family, &CDeviceBase::getDeviceInfo, ipport);
}

bool CDeviceFactory::exportDevice(const QString &family, const QString &folder, const QStringList &macs,
                                  const QString &fileName)
{
    return forward(family, &CDeviceBase::exportDevice, folder, macs, fileName);
}

int CDeviceFactory::getLoginDevice(const QString &family, const QString &address, const QString &account,
                                   const QString &password, const QString &port, int loginType,
                                   const QString &devp2pPort)
{
    const int result = forward(family, &CDeviceBase::getLoginDevice, address, account, password, port,
                               loginType, devp2pPort);
    // The device has its row in place of the one that it had before, which may have been reached otherwise.
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

void CDeviceFactory::setUpgradeFilePath(const QString &family, const QString &mac, const QString &path)
{
    forward(family, &CDeviceBase::setUpgradeFilePath, mac, path);
}

void CDeviceFactory::startUpgrade(const QString &family, const QStringList &macs)
{
    forward(family, &CDeviceBase::startUpgrade, macs);
}

void CDeviceFactory::startUpgradeByDocument(const QString &family, const QStringList &paths)
{
    forward(family, &CDeviceBase::startUpgradeByDocument, paths);
}

void CDeviceFactory::stopUpgrade(const QString &family, const QString &mac)
{
    forward(family, &CDeviceBase::stopUpgrade, mac);
}

QStringList CDeviceFactory::upgradesToRetry(const QString &family)
{
    return forward(family, &CDeviceBase::upgradesToRetry);
}

bool CDeviceFactory::openTemplate()
{
    const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/template/") +
                         UpgradeTools::templateFileName();
    return QFileInfo::exists(path) && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QVariantList CDeviceFactory::importUpgradeDocument(const QString &family, const QString &file)
{
    return forward(family, &CDeviceBase::importUpgradeDocument, file);
}

QString CDeviceFactory::getErrorName(int error)
{
    return resultName(error);
}

int CDeviceFactory::findAndLoginDevice(const QString &family, const QString &ipport, const QString &account,
                                       const QString &password)
{
    return forward(family, &CDeviceBase::findAndLoginDevice, ipport, account, password);
}

bool CDeviceFactory::updataDeviceInfo(const QString &family, const QString &key, const QVariant &newValue,
                                      const QString &mac, const QString &ipport)
{
    return forward(family, &CDeviceBase::updataDeviceInfo, key, newValue, mac, ipport);
}

void CDeviceFactory::getCameraConfig(const QString &family)
{
    forward(family, &CDeviceBase::getCameraConfig);
}

QVariant CDeviceFactory::getConfigData(const QString &family, const QString &key, const QVariant &channel)
{
    return forward(family, &CDeviceBase::getConfigData, key, channel);
}

void CDeviceFactory::getEncodeCaps(const QString &family)
{
    forward(family, &CDeviceBase::getEncodeCaps);
}

void CDeviceFactory::setConfigData(const QString &family, const QString &key, const QVariant &value,
                                   const QString &otype)
{
    forward(family, &CDeviceBase::setConfigData, key, value, otype);
}

QVariantList CDeviceFactory::getDeviceChannelData(const QString &family, const QString &key, int channelNum)
{
    return forward(family, &CDeviceBase::getDeviceChannelData, key, channelNum);
}

void CDeviceFactory::confirmConfigData(const QString &family)
{
    forward(family, &CDeviceBase::confirmConfigData);
}

void CDeviceFactory::getVideoIn(const QString &family)
{
    forward(family, &CDeviceBase::getVideoIn);
}

void CDeviceFactory::getVideoInByChangeChannel(const QString &family)
{
    forward(family, &CDeviceBase::getVideoInByChangeChannel);
}

void CDeviceFactory::getEncodeInfo(const QString &family)
{
    forward(family, &CDeviceBase::getEncodeInfo);
}

void CDeviceFactory::copyConfigToDevice(const QString &family, const QStringList &devlist)
{
    forward(family, &CDeviceBase::copyConfigToDevice, devlist);
}

void CDeviceFactory::systemConfig(const QString &family, const QString &command, const QVariantMap &data,
                                  const QStringList &ipports)
{
    forward(family, &CDeviceBase::systemConfig, command, data, ipports);
}

void CDeviceFactory::addP2PPort(int p2pPort, int webPort)
{
    m_p2pPorts.pair(p2pPort, webPort);
}

int CDeviceFactory::getP2PWebPort(int port)
{
    return m_p2pPorts.webPortOf(port);
}

QVariantList CDeviceFactory::getDays(int month)
{
    const int count = QDate(QDate::currentDate().year(), month, 1).daysInMonth();
    QVariantList days;
    for (int day = 1; day <= count; ++day)
        days.append(day);
    return days;
}

void CDeviceFactory::snapPictureToFile(const QString &family, const QString &kind, const QVariant &channelNum,
                                       const QString &address)
{
    forward(family, &CDeviceBase::snapPictureToFile, kind, channelNum, address);
}

void CDeviceFactory::releaseP2PPort(int p2pPort)
{
    if (isInUse(p2pPort))
        m_p2pPorts.note(p2pPort);
    else
        m_p2pPorts.releaseDevice(p2pPort);
}

QString CDeviceFactory::p2pFault()
{
    return m_p2pPorts.faultText();
}

QVariantList CDeviceFactory::exportFaults(const QString &family)
{
    return forward(family, &CDeviceBase::exportFaults);
}

QVariantList CDeviceFactory::importFailures(const QString &family)
{
    return forward(family, &CDeviceBase::importFailures);
}

QString CDeviceFactory::upgradeDocumentResult(const QString &family)
{
    return forward(family, &CDeviceBase::upgradeDocumentResult);
}

QVariantMap CDeviceFactory::upgradeDocumentProgress(const QString &family)
{
    return forward(family, &CDeviceBase::upgradeDocumentProgress);
}

int CDeviceFactory::upgradeDocumentSuccesses(const QString &family)
{
    return forward(family, &CDeviceBase::upgradeDocumentSuccesses);
}

int CDeviceFactory::checkLogin(const QString &family, const QString &ipport, const QString &account,
                               const QString &password)
{
    return forward(family, &CDeviceBase::checkLogin, ipport, account, password);
}

CDeviceFactory::LoginCheck CDeviceFactory::loginCheck(const QString &family) const
{
    // The back end waits at its end for the threads that ask it; one that held it would end it.
    return [backEnd = m_backEnds.value(family).get()](const QString &ipport, const QString &account,
                                                      const QString &password) {
        return backEnd ? backEnd->checkLogin(ipport, account, password) : resultCode(LoginResult::Success);
    };
}

QVariantMap CDeviceFactory::readDeviceDetail(const QString &family, const QString &ipport)
{
    return forward(family, &CDeviceBase::readDeviceDetail, ipport);
}

QString CDeviceFactory::importError(const QString &family)
{
    return forward(family, &CDeviceBase::importError);
}

void CDeviceFactory::openSession(const QString &family, const QString &ipport, const QString &account,
                                 const QString &password, bool readsChannels, bool isGivenNow)
{
    forward(family, &CDeviceBase::openSession, ipport, account, password, readsChannels, isGivenNow);
}

void CDeviceFactory::stopOpeningSession(const QString &family)
{
    forward(family, &CDeviceBase::stopOpeningSession);
}

void CDeviceFactory::stopSearch(const QString &family)
{
    forward(family, &CDeviceBase::stopSearch);
}

void CDeviceFactory::refreshDevices(const QString &family, const QStringList &macs)
{
    forward(family, &CDeviceBase::refreshDevices, macs);
}

void CDeviceFactory::checkSession(const QString &family)
{
    forward(family, &CDeviceBase::checkSession);
}
