// Pictures of channels as files: of the current session's device, and of others for an overview.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/devicepictures.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>
#include <QList>

#include <memory>

class CurrentSession;
struct OwnPicture;
struct OwnPictureOrder;
class DeviceLogins;
class DeviceStore;
class SnapThread;
struct SecureLogin;
struct SnapTask;

/// Lives on the scene's thread; its steps run on any other.
class PictureOperations
{
    Q_DECLARE_TR_FUNCTIONS(PictureOperations)
public:
    PictureOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                      const DeviceLogins &logins, UpgradeCheck isUpgradingAt, const CurrentSession &session,
                      BackEndSignals &backEndSignals);
    ~PictureOperations();
    PictureOperations(const PictureOperations &) = delete;
    PictureOperations &operator=(const PictureOperations &) = delete;

    /// Returns at once; the snapshots of the current session's device are taken one after another on a thread
    /// of their own. `address` names the device's folder.
    void takeSnapshots(const QString &kind, int channel, const QString &address);

    /// As CDeviceBase::snapshotSteps().
    [[nodiscard]] QList<DeviceStep> snapshotSteps(const QString &address);

    /// A snapshot in a login of a live view, see OwnSession::takePicture(). Any thread.
    [[nodiscard]] static OwnPicture takeOwnPicture(const sdk::SdkLibraries &libraries,
                                                   const OwnPictureOrder &order, const StepControl &control);

    /// As CDeviceBase::pictureStep().
    [[nodiscard]] DeviceStep pictureStep(const PictureOrder &order);

    /// Gives up the snapshots that takeSnapshots() has begun, and waits for their thread.
    void giveUpSnapshots();

private:
    /// Of one channel, or of all for -1.
    [[nodiscard]] SnapTask snapTask(const QString &kind, int onlyChannel, const QString &address) const;
    /// Takes the pictures of an order in a login. Any thread.
    [[nodiscard]] StepOutcome takePictures(const PictureOrder &order, const SecureLogin &login,
                                           const StepControl &control) const;
    /// Any thread.
    void noteSnapshot(const QString &kind, int channel, const QString &path, const QString &message);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgradingAt;
    const CurrentSession &m_session;
    BackEndSignals &m_signals;
    std::unique_ptr<SnapThread> m_snapshots; ///< null until the first snapshot
};
