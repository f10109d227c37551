// Work with a device that a page waits for. It is made on the scene's thread and runs on any other.
#pragma once

#include "device/registry/devicestep.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>

/// What has come of such work.
struct SceneOutcome
{
    QVariant value; ///< for the page
    std::function<void()>
        take; ///< puts the results in place and emits the signals of the work, in their
              ///< order; to be called once on the scene's thread, or not at all. May be empty
};

/// Runs once, and blocks its thread for the waits of the library. Changes nothing that the scene sees: an
/// outcome that is not taken leaves no trace, and a login that was made for it is logged out.
using SceneStep = std::function<SceneOutcome(const StepControl &control)>;

/// The operations of the back end on the current session, for work on any thread. Each does the requests of
/// the operation of its name. They work on a copy of what is known of the device, which takes its place when
/// the outcome is taken; their signals are emitted then.
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

    /// Whether one of the operations has shown that the session is lost: others would only fail again.
    [[nodiscard]] virtual bool isDeviceAway() const = 0;
};

/// Several operations. What it returns is the value of the outcome.
using SessionJob = std::function<QVariant(SessionOperations &operations, const StepControl &control)>;
