#include "device/dh/configuration/sessionlogins.h"

#include "device/dh/configuration/currentsession.h"
#include "device/dh/configuration/devicereservations.h"
#include "device/dh/logins/devicelogins.h"
#include "device/dh/session/logindetail.h"
#include "device/dh/session/securelogin.h"
#include "device/dh/session/sessionthreads.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "device/store/devicestore.h"
#include "sdk/netlibrary.h"

#include <utility>

namespace {

/// A login of a live view, separate from the current session. Also logged out when the back end ends.
class LiveLogin final : public OwnSession
{
public:
    LiveLogin(std::weak_ptr<SessionThreads> threads, OwnImageTaker takeOwnImage, const SecureLogin &login)
        : m_threads(std::move(threads)), m_takeImage(std::move(takeOwnImage)), m_handle(login.handle),
          m_channelCount(login.channelCount)
    {
    }

    ~LiveLogin() override
    {
        if (const std::shared_ptr<SessionThreads> threads = m_threads.lock())
            threads->logOut(m_handle);
    }

    [[nodiscard]] qint64 handle() const override { return m_handle; }
    [[nodiscard]] int channelCount() const override { return m_channelCount; }
    [[nodiscard]] OwnImage takeImage(int channel, const QString &folder,
                                     const StepControl &control) const override
    {
        return m_takeImage(
            {.handle = m_handle, .channelCount = m_channelCount, .channel = channel, .folder = folder},
            control);
    }

private:
    const std::weak_ptr<SessionThreads> m_threads;
    const OwnImageTaker m_takeImage;
    const std::int64_t m_handle;
    const int m_channelCount;
};

} // namespace

SessionLogins::SessionLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                             const DeviceLogins &logins, std::shared_ptr<SessionThreads> threads,
                             OwnImageTaker takeOwnImage, const DeviceReservations &reservations,
                             CurrentSession &session, BackEndSignals &backEndSignals)
    : m_store(std::move(store)), m_libraries(std::move(libraries)), m_logins(logins),
      m_threads(std::move(threads)), m_takeOwnImage(std::move(takeOwnImage)), m_reservations(reservations),
      m_session(session), m_signals(backEndSignals)
{
}

int SessionLogins::findAndLogin(const QString &ipport, const QString &account, const QString &password)
{
    if (!m_libraries.net) {
        const int result = resultCode(LoginResult::NetworkFailure);
        m_signals.emitNow<&CDeviceBase::signalCDeviceHighLevelLoginRet>(result);
        return result;
    }
    const PageOutcome outcome = loginStep(ipport, account, password)(StepControl());
    outcome.take();
    return outcome.value.toInt();
}

PageStep SessionLogins::loginStep(const QString &ipport, const QString &account, const QString &password)
{
    return [this, ipport, account, password](const StepControl &control) {
        const BatchEngine::Reservation reservation = m_reservations.reserve(ipport, control);
        if (control.isStopped())
            return PageOutcome();
        const auto login = std::make_shared<UntakenLogin>(
            m_libraries.net, m_logins.logIn(ipport, {.account = account, .password = password}));
        const int result = resultCode(login->result());
        return PageOutcome{.value = result, .take = [this, ipport, account, password, login, result] {
                               if (login->result() == LoginResult::Success)
                                   m_session.begin(ipport, account, password, login->take());
                               m_signals.emitNow<&CDeviceBase::signalCDeviceHighLevelLoginRet>(result);
                           }};
    };
}

int SessionLogins::check(const QString &ipport, const QString &account, const QString &password) const
{
    if (m_reservations.isUpgradingAt(ipport)) // a request after the check would disturb the upgrade
        return resultCode(LoginResult::Upgrading);
    const SecureLogin login = m_logins.logIn(ipport, {.account = account, .password = password});
    if (login.handle != 0)
        m_libraries.net->NetLogout(login.handle);
    // An uninitialised device refuses a login without a reason. The row decides only in that case, since it
    // may be outdated.
    const QJsonValue state = m_store->rowAt(ipport).value(DeviceRowKey::state);
    if (login.result == LoginResult::NotSupported && state.isBool() && !state.toBool())
        return resultCode(LoginResult::NotInitialised);
    return resultCode(login.result);
}

QVariantMap SessionLogins::readDetail(const QString &ipport)
{
    return detailStep(ipport)(StepControl()).value.toMap();
}

PageStep SessionLogins::detailStep(const QString &ipport)
{
    return [this, ipport, known = m_logins.accountAt(ipport)](const StepControl &control) {
        const BatchEngine::Reservation reservation = m_reservations.reserve(ipport, control);
        if (control.isStopped())
            return PageOutcome();
        const SecureLogin login = m_logins.logIn(ipport, known);
        QVariantMap detail;
        if (login.handle != 0) {
            if (!control.shouldEnd())
                detail = loginDetail(ConfigSession(m_libraries, login.handle));
            m_libraries.net->NetLogout(login.handle);
        }
        detail.insert(DeviceDetailKey::loginResult, resultCode(login.result));
        return PageOutcome{.value = detail,
                           .take = [this, ipport, mac = detail.value(DeviceRowKey::mac).toString()] {
                               takeMac(ipport, mac);
                           }};
    };
}

void SessionLogins::takeMac(const QString &ipport, const QString &mac)
{
    if (mac.isEmpty() || !m_store->row(mac).isEmpty())
        return;
    bool isChanged = false;
    m_store->changeRowAt(ipport, [&](QJsonObject &row) {
        isChanged = row.value(DeviceRowKey::mac) == QString();
        if (isChanged)
            row.insert(DeviceRowKey::mac, mac);
    });
    if (isChanged)
        m_signals.emitNow<&CDeviceBase::signalCDeviceAddSingleDeviceToTable>();
}

OwnSessionStep SessionLogins::ownSessionStep(const OwnSessionOrder &order)
{
    return [libraries = m_libraries, threads = std::weak_ptr(m_threads), takeOwnImage = m_takeOwnImage,
            order](const StepControl &) {
        const std::shared_ptr<OwnSession> &present = order.present;
        const SessionOffer offer =
            offerSession(libraries, {.ipport = order.ipport,
                                     .account = order.account,
                                     .password = order.password,
                                     .handle = present ? present->handle() : 0,
                                     .channelCount = present ? present->channelCount() : 0,
                                     .isNewLogin = false,
                                     .readsChannels = !present});
        OwnSessionOffer made = {.result = resultCode(offer.result), .channels = offer.channels};
        if (offer.login.handle != 0)
            made.session = std::make_shared<LiveLogin>(threads, takeOwnImage, offer.login);
        else if (offer.result == LoginResult::Success)
            made.session = present;
        return made;
    };
}

void SessionLogins::openSession(const QString &ipport, const QString &account, const QString &password,
                                bool readsChannels, bool isGivenNow)
{
    const bool isCurrent = m_session.isWith(ipport);
    const SessionOrder order = {.ipport = ipport,
                                .account = account,
                                .password = password,
                                .handle = isCurrent ? m_session.handle() : 0,
                                .channelCount = isCurrent ? m_session.channelCount() : 0,
                                .isNewLogin = isGivenNow || account != m_session.account() ||
                                              password != m_session.password(),
                                .isGivenNow = isGivenNow,
                                .readsChannels = readsChannels};
    const Request request = {.number = ++m_lastRequest, .sessionBefore = m_session.handle()};
    m_threads->start([this, order, request] {
        if (request.number != m_lastRequest)
            return; // replaced by a later request while waiting for a thread
        const SessionOffer offer = offerSession(m_libraries, order);
        // If the queued call is dropped, the back end is ending and releases every login.
        m_signals.queue([this, request, order, offer] { takeOffer(request, order, offer); });
    });
}

void SessionLogins::checkSession()
{
    m_threads->start([this, handle = m_session.handle()] {
        const bool responses = handle != 0 && respondsInSession(ConfigSession(m_libraries, handle));
        m_signals.queue(
            [this, responses] { m_signals.emitNow<&CDeviceBase::signalCDeviceSessionChecked>(responses); });
    });
}

void SessionLogins::takeOffer(const Request &request, const SessionOrder &order, const SessionOffer &offer)
{
    const bool isWanted = request.number == m_lastRequest;
    const bool isOvertaken = request.sessionBefore != m_session.handle();
    if (!isWanted || isOvertaken) {
        if (offer.login.handle != 0)
            m_libraries.net->NetLogout(offer.login.handle);
        // Another page has logged in during the request. Its session is used if it is with the same device.
        if (isWanted && m_session.ipport() == order.ipport)
            openSession(order.ipport, order.account, order.password, order.readsChannels, false);
        return;
    }
    m_logins.note(order.ipport, offer.result);
    if (offer.login.handle != 0)
        m_session.begin(order.ipport, order.account, order.password, offer.login);
    if (offer.login.handle != 0 || offer.result != LoginResult::Success)
        m_signals.emitNow<&CDeviceBase::signalCDeviceHighLevelLoginRet>(resultCode(offer.result));
    m_signals.emitNow<&CDeviceBase::signalCDeviceSessionOpened>(order.ipport, resultCode(offer.result),
                                                                offer.channels);
}
