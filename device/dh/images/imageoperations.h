// Saves images of channels to files: snapshots of sessions, and images of many devices.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/deviceimages.h"
#include "device/registry/devicestep.h"
#include "device/registry/upgradecheck.h"
#include "sdk/sdklibraries.h"

#include <QCoreApplication>
#include <QList>

#include <memory>

class CurrentSession;
struct OwnImage;
struct OwnImageOrder;
class DeviceLogins;
class DeviceStore;
class SnapThread;
struct SecureLogin;
struct SnapTask;

/// Takes snapshots (one image of a live view) in the current session or in a session of the live window, and
/// images of many devices, each in a separate login. Writes them to files. Lives on the main thread; its
/// steps run on any thread.
class ImageOperations
{
    Q_DECLARE_TR_FUNCTIONS(ImageOperations)
public:
    /// The referenced objects must outlive this object, which must outlive its steps.
    ImageOperations(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
                    const DeviceLogins &logins, UpgradeCheck isUpgradingAt, const CurrentSession &session,
                    BackEndSignals &backEndSignals);
    ~ImageOperations();
    ImageOperations(const ImageOperations &) = delete;
    ImageOperations &operator=(const ImageOperations &) = delete;

    /// Takes snapshots of the current session's device one after another on a separate thread, after those
    /// of earlier calls, and returns immediately. `kind` is "liveCapture" for all channels, each of which
    /// emits CDeviceBase::signalSnapPictureToFile, or "againCapture" for `channel` (from 0), which emits
    /// CDeviceBase::signalSnapPictureToFileAgain; others are ignored. The signals also report failures. After
    /// a login to another device, the remaining snapshots of this one are reported as failures. `address` is
    /// the name of the device's folder in the folder of snapshots; characters that file systems do not accept
    /// become "_".
    void takeSnapshots(const QString &kind, int channel, const QString &address);

    /// A step for each channel of the current session, in their order; none without a session. A step saves a
    /// snapshot in the folder `address` (see takeSnapshots()) and emits CDeviceBase::signalSnapPictureToFile
    /// on its thread, unless it is ended early (NotDone). After a failure its result is NetworkFailure if
    /// there is no frame or the session is with another device, otherwise snapshotFailed.
    [[nodiscard]] QList<DeviceStep> snapshotSteps(const QString &address);

    /// Takes a snapshot with the login of a live view, which must stay open until the return, see
    /// OwnSession::takeImage(). Any thread except the main thread; blocks.
    [[nodiscard]] static OwnImage takeOwnImage(const sdk::SdkLibraries &libraries, const OwnImageOrder &order,
                                               const StepControl &control);

    /// Saves the image of a channel (from 0) as "<channel>.jpg" in `folder` (absolute path; created if
    /// missing) with the login `handle`, which must stay open until the return. Makes up to `tries` attempts
    /// to get a frame, one every 100 ms. Returns the path of the file; empty on failure. Any thread except
    /// the main thread; blocks.
    [[nodiscard]] static QString takeQuickImage(const sdk::SdkLibraries &libraries, qint64 handle,
                                                int channel, const QString &folder, int tries);
    /// A step that logs in to the device with the account that it has at this call, saves the images of its
    /// channels one after another, and logs out. Without a request: NotInitialised for such a device,
    /// Upgrading during an upgrade, except with ImageOrder::isBeforeUpgrade. NotDone if it is ended between
    /// two channels, otherwise a failure (that of the first channel) only if no image was taken. The text of
    /// a success states the number of missing images in the user's language; empty if there are none.
    [[nodiscard]] DeviceStep imageStep(const ImageOrder &order);

    /// Cancels the snapshots of takeSnapshots() and waits for their thread. Steps are not affected.
    void cancelSnapshots();

private:
    /// Task for one channel (from 0), or for all with -1.
    [[nodiscard]] SnapTask snapTask(const QString &kind, int onlyChannel, const QString &address) const;
    /// Takes the images of an order with a login. Any thread.
    [[nodiscard]] StepOutcome takeImages(const ImageOrder &order, const SecureLogin &login,
                                         const StepControl &control) const;
    /// Emits the signal of `kind` for one snapshot. Any thread.
    void noteSnapshot(const QString &kind, int channel, const QString &path, const QString &message);

    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    const UpgradeCheck m_isUpgradingAt;
    const CurrentSession &m_session;
    BackEndSignals &m_signals;
    std::unique_ptr<SnapThread> m_snapshots; ///< null until the first snapshot
};
