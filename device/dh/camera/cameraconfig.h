// The camera image configuration of the logged-in device.
#pragma once

#include "device/dh/camera/camerastate.h"
#include "device/dh/encode/valuetables.h"

#include <QVariant>

/// The camera of one channel of the current session's device. Every change goes to the device at once. A
/// value; a copy works on the same device. Blocks for the waits of the library. One thread at a time.
class CameraConfig
{
public:
    /// What came of a change.
    enum class Outcome
    {
        Ignored, ///< no such setting or value, or one that was not read: nothing was asked of the device
        Taken,
        Refused,    ///< by the device; the values are again those that it has
        Unanswered, ///< the device is away; the values are those that it had
    };

    /// `tables` must outlive this object and its copies.
    explicit CameraConfig(const ValueTables &tables);

    /// Turns to a new session; nothing is known of its device yet.
    void begin(const ConfigSession &session);

    /// Another channel was chosen: the values that are there are not its own, and count as not read until
    /// readCapabilities() and readItems() have read them.
    void forgetItems();

    /// Reads the configuration "VideoColor" of a channel.
    void readColor(int channel);

    /// Reads what the camera of a channel can do, and its configurations. Returns 0; otherwise every
    /// group says that it is not supported, and the result is that of a device that is away, or 10.
    [[nodiscard]] int readCapabilities(int channel);

    /// Reads the values of a channel and the chosen mode. Returns 0, or the result of a device that is away.
    [[nodiscard]] int readItems(int channel);

    [[nodiscard]] QVariant value(const QString &key) const;
    Outcome setValue(const QString &key, const QVariant &value, const QString &subKey, int channel);

    /// The library's error of the last change that was refused or not answered.
    [[nodiscard]] int lastError() const { return m_lastError; }

private:
    /// Of the writes that `changed` needs some failed.
    Outcome takeFailure(int channel, CameraState &changed);
    void chooseMode(const QVariant &place);

    const ValueTables &m_tables;
    ConfigSession m_session;
    CameraState m_state;
    int m_lastError = 0;
};
