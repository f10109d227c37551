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
/// that QML can see before the outcome is taken. If the outcome is destroyed without being taken, its login
/// is logged out.
using PageStep = std::function<PageOutcome(const StepControl &control)>;

/// The operations of CDeviceBase on the current session, see there, for the thread of a step. They change a
/// copy of the session's state and collect their signals. When the outcome is taken, the copy replaces the
/// state and the signals are emitted.
class SessionOperations
{
public:
    virtual ~SessionOperations() = default;

    virtual void getEncodeCaps() = 0;
    virtual void getEncodeInfo() = 0;
    virtual void confirmConfigData() = 0;
    virtual void getCameraConfig() = 0;
    virtual void getVideoIn() = 0;
    virtual void getVideoInByChangeChannel() = 0;
    [[nodiscard]] virtual QVariant getConfigData(const QString &key, const QVariant &channel) = 0;
    virtual void setConfigData(const QString &key, const QVariant &value, const QString &otype) = 0;
    [[nodiscard]] virtual QVariantList getDeviceChannelData(const QString &key, int channelNum) = 0;

    /// Whether an operation has failed because the session is lost. Further operations would fail, too.
    [[nodiscard]] virtual bool isDeviceAway() const = 0;
};

/// Several operations that run one after another in one step. Returns the value of the outcome.
using SessionJob = std::function<QVariant(SessionOperations &operations, const StepControl &control)>;
