// The image settings of the logged-in device.
#pragma once

#include "device/dh/camera/camerastate.h"
#include "device/dh/encode/valuetables.h"

#include <QVariant>

/// The image settings of one channel of the current session's device. Changes are written to the device
/// immediately. A value type; a copy works on the same device. Blocks for the timeouts of the device library.
/// Not thread-safe.
class CameraConfig
{
public:
    /// Result of setValue().
    enum class Outcome
    {
        Ignored,    ///< unknown setting, invalid value, or not read: nothing was written
        Taken,      ///< written; for "curSwitchMode" always, even if the mode is invalid and ignored
        Refused,    ///< by the device; after a refused write the values have been read again
        NoResponse, ///< the device does not respond; the values are unchanged
    };

    /// `tables` must outlive this object and its copies.
    explicit CameraConfig(const ValueTables &tables);

    /// Sets the session and clears all values.
    void begin(const ConfigSession &session);

    /// Marks all items as not read, after another channel was selected. readCapabilities() and readItems()
    /// read them.
    void markItemsUnread();

    /// Reads the configuration "VideoColor" of a channel.
    void readColor(int channel);

    /// Reads the capabilities and configurations of a channel. Returns 0 on success, capabilitiesUnknown (10)
    /// if the device does not report its capabilities (no group is supported then), or deviceAway.
    [[nodiscard]] int readCapabilities(int channel);

    /// Reads the items of a channel in the selected mode. Returns 0 or deviceAway.
    [[nodiscard]] int readItems(int channel);

    [[nodiscard]] QVariant value(const QString &key) const; ///< see cameraValue()
    Outcome setValue(const QString &key, const QVariant &value, const QString &subKey, int channel);

    /// The device library's error of the last Refused or NoResponse change.
    [[nodiscard]] int lastError() const { return m_lastError; }

private:
    /// Reads the values again after a refused write; earlier writes may have succeeded.
    Outcome takeFailure(int channel, CameraState &changed);
    void chooseMode(const QVariant &index);

    const ValueTables &m_tables;
    ConfigSession m_session;
    CameraState m_state;
    int m_lastError = 0;
};
