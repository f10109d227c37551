// Logins for the window: for the current session, for separate sessions, and temporary ones.
#pragma once

#include "device/dh/session/sessionoffer.h"
#include "device/registry/backendsignals.h"
#include "device/registry/ownsession.h"
#include "device/registry/pagestep.h"

#include <QVariantMap>

#include <atomic>
#include <memory>

class CurrentSession;
class DeviceLogins;
class DeviceStore;
class DeviceReservations;
class SessionThreads;

/// Implements the operations of CDeviceBase that log in for the window, and their steps; the comments there
/// apply to functions without one here. Lives on the main thread; its steps run on any thread.
class SessionLogins
{
public:
    /// The referenced objects must outlive this object, which must outlive its steps.
    /// `threads` must not be null. Separate sessions keep a copy of `takeOwnImage`.
    SessionLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                  std::shared_ptr<SessionThreads> threads, OwnImageTaker takeOwnImage,
                  const DeviceReservations &reservations, CurrentSession &session,
                  BackEndSignals &backEndSignals);

    /// Logs in for the current session. Returns a LoginResult and emits signalCDeviceHighLevelLoginRet with
    /// it; NetworkFailure if there is no network library. After a failure the earlier session is kept. Blocks
    /// for the device, and before that until its running batch step has ended.
    int findAndLogin(const QString &ipport, const QString &account, const QString &password);
    /// The step of findAndLogin(). Its value is the LoginResult. The session begins and the signal is emitted
    /// when the outcome is taken. A stop before the login gives an empty outcome.
    [[nodiscard]] PageStep loginStep(const QString &ipport, const QString &account, const QString &password);

    /// Logs in and out to check an account; the current session is not affected. Any thread; blocks for the
    /// device. Returns a LoginResult: Upgrading, without a request, during an upgrade; NotInitialised if the
    /// device refuses without a reason and its row is not initialised.
    [[nodiscard]] int check(const QString &ipport, const QString &account, const QString &password) const;

    /// Logs in with the account of the device, reads its details, and logs out. Returns the map of
    /// loginDetail() with "loginResult" (a LoginResult), which is the only key after a failed login. Blocks
    /// for the device.
    [[nodiscard]] QVariantMap readDetail(const QString &ipport);
    /// The step of readDetail(). Its value is the map; taking the outcome also sets the MAC of a row without
    /// one. A stop before the login gives an empty outcome.
    [[nodiscard]] PageStep detailStep(const QString &ipport);

    /// Logs in for a separate session, or keeps `order.present`. The session that the step returns logs out
    /// when it is destroyed, or when the back end ends.
    [[nodiscard]] OwnSessionStep ownSessionStep(const OwnSessionOrder &order);

    /// Makes the current session one with this device: keeps it if the device responds in it, otherwise logs
    /// in. Returns immediately; signalCDeviceSessionOpened follows, after signalCDeviceHighLevelLoginRet
    /// unless the session is kept. No signal follows if the request is replaced or stopped before, or if
    /// another page logs in to another device. See CDeviceBase::openSession() for the parameters.
    void openSession(const QString &ipport, const QString &account, const QString &password,
                     bool readsChannels, bool isGivenNow);
    /// Drops the result of a pending openSession(): its login is logged out, and no signal is emitted.
    void stopOpeningSession() { ++m_lastRequest; }
    /// Requests a response in the current session; signalCDeviceSessionChecked reports later whether there
    /// was one (false without a session).
    void checkSession();

private:
    /// A pending openSession().
    struct Request
    {
        int number = 0;
        std::int64_t sessionBefore = 0; ///< handle of the session at the time of the request
    };

    void takeOffer(const Request &request, const SessionOrder &order, const SessionOffer &offer);
    /// Sets the MAC of a row without one, unless another row has this MAC. The row keeps its name.
    void takeMac(const QString &ipport, const QString &mac);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const std::shared_ptr<SessionThreads> m_threads;
    const OwnImageTaker m_takeOwnImage;
    const DeviceReservations &m_reservations;
    CurrentSession &m_session;
    BackEndSignals &m_signals;
    std::atomic<int> m_lastRequest = 0; ///< number of the latest openSession(); earlier ones are dropped
};
