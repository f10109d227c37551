// The current session.
#include "device/batch/batchplan.h"
#include "device/dh/devicedh.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/logindetail.h"
#include "device/dh/session/securelogin.h"
#include "device/dh/session/sessionoffer.h"
#include "device/dh/session/sessionthreads.h"
#include "device/dh/upgrade/upgraderound.h"
#include "device/registry/devicerow.h"
#include "device/registry/devicestore.h"
#include "sdk/netlibrary.h"

#include <utility>

namespace {

/// A login of a live view beside the current session. The end of the back end logs out as well.
class LiveLogin final : public OwnSession
{
public:
    LiveLogin(std::weak_ptr<SessionThreads> threads, const SecureLogin &login)
        : m_threads(std::move(threads)), m_handle(login.handle), m_channelCount(login.channelCount)
    {
    }

    ~LiveLogin() override
    {
        if (const std::shared_ptr<SessionThreads> threads = m_threads.lock())
            threads->logOut(m_handle);
    }

    [[nodiscard]] qint64 handle() const override { return m_handle; }
    [[nodiscard]] int channelCount() const override { return m_channelCount; }
    [[nodiscard]] OwnPicture takePicture(int channel, const QString &folder,
                                         const StepControl &control) const override
    {
        return m_backEnd ? m_backEnd->takeOwnPicture(m_handle, m_channelCount, channel, folder, control)
                         : OwnPicture();
    }

private:
    const std::weak_ptr<SessionThreads> m_threads;
    const std::int64_t m_handle;
    const int m_channelCount;
};

} // namespace

int CDeviceDH::findAndLoginDevice(const QString &ipport, const QString &account, const QString &password)
{
    if (!m_libraries.net)
        return resultCode(LoginResult::NetworkFailure);
    const SceneOutcome outcome = loginStep(ipport, account, password)(StepControl());
    outcome.take();
    return outcome.value.toInt();
}

SceneStep CDeviceDH::loginStep(const QString &ipport, const QString &account, const QString &password)
{
    return [this, ipport, account, password](const StepControl &control) {
        const BatchEngine::Hold hold = holdDevice(ipport, control);
        if (control.isStopped())
            return SceneOutcome();
        const auto login = std::make_shared<UntakenLogin>(
            m_libraries.net, m_logins->logIn(ipport, {.account = account, .password = password}));
        const int result = resultCode(login->result());
        return SceneOutcome{.value = result, .take = [this, ipport, account, password, login, result] {
                                if (login->result() == LoginResult::Success)
                                    beginSession(ipport, account, password, login->take());
                                Q_EMIT signalCDeviceHighLevelLoginRet(result);
                            }};
    };
}

BatchEngine::Hold CDeviceDH::holdDevice(const QString &ipport, const StepControl &control) const
{
    // The step of an upgrade takes minutes. What would disturb it is refused instead.
    if (m_upgrades->isUpgradingAt(ipport))
        return {};
    return m_engine->hold(workKey(store().rowAt(ipport), ipport, ipport), control.stopToken());
}

void CDeviceDH::runForScene(const SceneStep &step, const std::stop_token &stop,
                            const std::function<void(const SceneOutcome &outcome)> &ended)
{
    m_threads->runForScene(step, stop, ended);
}

int CDeviceDH::checkLogin(const QString &ipport, const QString &account, const QString &password)
{
    if (m_upgrades->isUpgradingAt(ipport)) // what follows the check would come between the device and its firmware
        return resultCode(LoginResult::Upgrading);
    const SecureLogin login = m_logins->logIn(ipport, {.account = account, .password = password});
    if (login.handle != 0)
        m_libraries.net->NetLogout(login.handle);
    // A device that waits for its first password takes no login and does not say why. Only what it refuses is
    // judged by its row, which may be older than the password.
    const QJsonValue state = store().rowAt(ipport).value(DeviceRowKey::state);
    if (login.result == LoginResult::NotSupported && state.isBool() && !state.toBool())
        return resultCode(LoginResult::NotInitialised);
    return resultCode(login.result);
}

QVariantMap CDeviceDH::readDeviceDetail(const QString &ipport)
{
    return detailStep(ipport)(StepControl()).value.toMap();
}

SceneStep CDeviceDH::detailStep(const QString &ipport)
{
    return [this, libraries = m_libraries, ipport,
            known = m_logins->accountAt(ipport)](const StepControl &control) {
        const BatchEngine::Hold hold = holdDevice(ipport, control);
        if (control.isStopped())
            return SceneOutcome();
        const SecureLogin login = m_logins->logIn(ipport, known);
        QVariantMap detail;
        if (login.handle != 0) {
            if (!control.shouldEnd())
                detail = loginDetail(ConfigSession(libraries, login.handle));
            libraries.net->NetLogout(login.handle);
        }
        detail.insert(QStringLiteral("loginResult"), resultCode(login.result));
        // A row that a search has listed without a MAC gets it, and keeps its name.
        const auto takeMac = [this, ipport, mac = detail.value(DeviceRowKey::mac).toString()] {
            if (mac.isEmpty() || !store().row(mac).isEmpty())
                return;
            bool isChanged = false;
            store().changeRowAt(ipport, [&](QJsonObject &row) {
                isChanged = row.value(DeviceRowKey::mac) == QString();
                if (isChanged)
                    row.insert(DeviceRowKey::mac, mac);
            });
            if (isChanged)
                Q_EMIT signalCDeviceAddSingleDeviceToTable();
        };
        return SceneOutcome{.value = detail, .take = takeMac};
    };
}

OwnSessionStep CDeviceDH::ownSessionStep(const OwnSessionOrder &order)
{
    return [this, order](const StepControl &) {
        const std::shared_ptr<OwnSession> &present = order.present;
        const SessionOffer offer =
            offerSession(m_libraries, {.ipport = order.ipport,
                                       .account = order.account,
                                       .password = order.password,
                                       .handle = present ? present->handle() : 0,
                                       .channelCount = present ? present->channelCount() : 0,
                                       .isNewLogin = false,
                                       .readsChannels = !present});
        OwnSessionOffer made = {.result = resultCode(offer.result), .channels = offer.channels};
        if (offer.login.handle != 0)
            made.session = std::make_shared<LiveLogin>(m_threads, offer.login);
        else if (offer.result == LoginResult::Success)
            made.session = present;
        return made;
    };
}

void CDeviceDH::openSession(const QString &ipport, const QString &account, const QString &password,
                            bool readsChannels, bool isGivenNow)
{
    const bool isCurrent = isInSession(ipport);
    const SessionOrder order = {.ipport = ipport,
                                .account = account,
                                .password = password,
                                .handle = isCurrent ? m_session.handle : 0,
                                .channelCount = isCurrent ? m_state->channels.channelCount : 0,
                                .isNewLogin = isGivenNow || account != m_session.account ||
                                              password != m_session.password,
                                .readsChannels = readsChannels};
    const SessionRequest request = {.number = ++m_sessionRequest, .sessionBefore = m_session.handle};
    m_threads->start([this, order, request, libraries = m_libraries] {
        if (request.number != m_sessionRequest)
            return; // it has waited for a thread so long that nobody waits for it any more
        const SessionOffer offer = offerSession(libraries, order);
        // Dropped with this object, whose end releases every login.
        QMetaObject::invokeMethod(
            this, [this, request, order, offer] { takeOffer(request, order, offer); }, Qt::QueuedConnection);
    });
}

void CDeviceDH::stopOpeningSession()
{
    ++m_sessionRequest;
}

bool CDeviceDH::isInSession(const QString &ipport)
{
    return m_session.handle != 0 && m_session.ipport == ipport;
}

void CDeviceDH::checkSession()
{
    m_threads->start([this, handle = m_session.handle, libraries = m_libraries] {
        const bool answers = handle != 0 && answersInSession(ConfigSession(libraries, handle));
        QMetaObject::invokeMethod(
            this, [this, answers] { Q_EMIT signalCDeviceSessionChecked(answers); }, Qt::QueuedConnection);
    });
}

void CDeviceDH::takeOffer(const SessionRequest &request, const SessionOrder &order, const SessionOffer &offer)
{
    const bool isWanted = request.number == m_sessionRequest;
    const bool isOvertaken = request.sessionBefore != m_session.handle;
    if (!isWanted || isOvertaken) {
        if (offer.login.handle != 0)
            m_libraries.net->NetLogout(offer.login.handle);
        // Another page has logged in meanwhile. What it did with the same device serves here as well.
        if (isWanted && m_session.ipport == order.ipport)
            openSession(order.ipport, order.account, order.password, order.readsChannels, false);
        return;
    }
    m_logins->note(order.ipport, offer.result);
    if (offer.login.handle != 0)
        beginSession(order.ipport, order.account, order.password, offer.login);
    if (offer.login.handle != 0 || offer.result != LoginResult::Success)
        Q_EMIT signalCDeviceHighLevelLoginRet(resultCode(offer.result));
    Q_EMIT signalCDeviceSessionOpened(order.ipport, resultCode(offer.result), offer.channels);
}

void CDeviceDH::beginSession(const QString &ipport, const QString &account, const QString &password,
                             const SecureLogin &login)
{
    if (ipport != m_session.ipport)
        ++m_deviceGeneration;
    const std::int64_t before = m_session.handle;
    m_session = {.loginKind = login.loginKind,
                 .handle = login.handle,
                 .ipport = ipport,
                 .account = account,
                 .password = password};
    m_loginHandle = login.handle; // before the other is logged out: snapshots go on in the new session
    m_state->begin(ConfigSession(m_libraries, login.handle), ipport, login.channelCount);
    if (before != 0)
        m_threads->logOutLater({before});
}

void CDeviceDH::endSession()
{
    m_loginHandle = 0;
    if (m_session.handle != 0 && m_libraries.net)
        m_libraries.net->NetLogout(m_session.handle);
    m_session = {};
    m_state->begin(ConfigSession(), {}, 0);
}
