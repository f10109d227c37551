// The work of a page with one device, as a function. A step is created on the main thread and runs on any
// other thread, see CDeviceBase::runForPage(). Its outcome is applied ("taken") on the main thread.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/// The result of a step of a page.
struct PageOutcome
{
    QVariant value; ///< for QML; its type depends on the work
    /// Stores the results in the back end and emits the signals of the work in their order. The receiver of
    /// the outcome calls it at most once, on the main thread. May be empty.
    std::function<void()> take;
};

/// Must be called at most once. Blocks its thread for the timeouts of the network library. It changes nothing
/// that QML can see before PageOutcome::take is called. If the outcome is destroyed without that call, a
/// login that it contains is logged out.
using PageStep = std::function<PageOutcome(const StepControl &control)>;

/// The operations on the current session, as the functions of CDeviceBase with these names, but for the
/// thread of a step. They block for the device, change a copy of the session's state and collect their
/// signals. When the outcome is taken, the copy replaces the state and the signals are emitted.
class SessionOperations
{
public:
    virtual ~SessionOperations() = default;

    /// Reads choices and values of the encode page, and the colours of its channel.
    virtual void getEncodeCaps() = 0;
    virtual void getEncodeInfo() = 0;     ///< the same without the colours; signalCDeviceChangeEncodeChannel
    virtual void confirmConfigData() = 0; ///< writes the encode values of the selected channel
    virtual void getCameraConfig() = 0;   ///< reads the camera's capabilities for the image page
    virtual void getVideoIn() = 0;        ///< reads the camera's image settings; signalCDeviceChangeVideoType
    virtual void getVideoInByChangeChannel() = 0; ///< the same; signalCDeviceChangeVideoChannel
    /// The value of a key of SessionKey, EncodeKey or CameraKey; invalid if it was not read. `channel` (from
    /// 0) is used for the names of channels only.
    [[nodiscard]] virtual QVariant getConfigData(const QString &key, const QVariant &channel) = 0;
    /// Sets a value. `otype` is the setting of an image group, or the channel (from 0) of a name. The comment
    /// of CDeviceBase::setConfigData() states which values are written to the device immediately.
    virtual void setConfigData(const QString &key, const QVariant &value, const QString &otype) = 0;
    /// Reads SessionKey::channelNames or SessionKey::channelsConnected of the first `channelNum` channels, of
    /// all for 0 or less.
    [[nodiscard]] virtual QVariantList getDeviceChannelData(const QString &key, int channelNum) = 0;

    /// Whether an operation has failed because the device does not respond or no longer accepts the session.
    /// Further operations would fail, too.
    [[nodiscard]] virtual bool isDeviceAway() const = 0;
};

/// Several operations that run one after another in one step. Returns the value of the outcome.
using SessionJob = std::function<QVariant(SessionOperations &operations, const StepControl &control)>;
