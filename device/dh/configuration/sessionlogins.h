// Logins for the window: those of the current session, those beside it, and those that end again at once.
#pragma once

#include "device/dh/session/sessionoffer.h"
#include "device/registry/backendsignals.h"
#include "device/registry/ownsession.h"
#include "device/registry/scenestep.h"

#include <QVariantMap>

#include <atomic>
#include <memory>

class CurrentSession;
class DeviceLogins;
class DeviceStore;
class PageHold;
class SessionThreads;

/// The operations of CDeviceBase that have the same names, and their steps. Lives on the scene's thread; its
/// steps run on any other.
class SessionLogins
{
public:
    /// `threads` are never null. Sessions beside the current one keep a copy of `takeOwnPicture`.
    SessionLogins(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                  std::shared_ptr<SessionThreads> threads, OwnPictureTaker takeOwnPicture,
                  const PageHold &hold, CurrentSession &session, BackEndSignals &backEndSignals);

    /// Logs in for the current session. Returns a LoginResult. Blocks for the device.
    int findAndLogin(const QString &ipport, const QString &account, const QString &password);
    [[nodiscard]] SceneStep loginStep(const QString &ipport, const QString &account, const QString &password);

    /// Any thread, which it blocks for the device. Returns a LoginResult.
    [[nodiscard]] int check(const QString &ipport, const QString &account, const QString &password) const;

    /// Blocks for the device.
    [[nodiscard]] QVariantMap readDetail(const QString &ipport);
    [[nodiscard]] SceneStep detailStep(const QString &ipport);

    [[nodiscard]] OwnSessionStep ownSessionStep(const OwnSessionOrder &order);

    void openSession(const QString &ipport, const QString &account, const QString &password,
                     bool readsChannels, bool isGivenNow);
    void stopOpeningSession() { ++m_lastRequest; }
    void checkSession();

private:
    /// An openSession() that is under way.
    struct Request
    {
        int number = 0;
        std::int64_t sessionBefore = 0; ///< handle of the session that there was
    };

    void takeOffer(const Request &request, const SessionOrder &order, const SessionOffer &offer);
    /// A row that a search has listed without a MAC gets it, and keeps its name.
    void takeMac(const QString &ipport, const QString &mac);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const std::shared_ptr<SessionThreads> m_threads;
    const OwnPictureTaker m_takeOwnPicture;
    const PageHold &m_hold;
    CurrentSession &m_session;
    BackEndSignals &m_signals;
    std::atomic<int> m_lastRequest = 0; ///< the number of the last openSession() that counts
};
