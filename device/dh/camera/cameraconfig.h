// The image settings of the logged-in device.
#pragma once

#include "device/dh/camera/camerastate.h"
#include "device/dh/encode/valuetables.h"

#include <QVariant>

/// The image settings of one channel of the current session's device. setValue() writes a change to the
/// device immediately. The order of calls for a channel is readCapabilities(), then readItems(), then
/// setValue(). A value type; a copy has its own values and works on the same device. Reading and setting
/// block for the timeouts of the device library. Channels are counted from 0. Not thread-safe.
class CameraConfig
{
public:
    /// Result of setValue().
    enum class Outcome
    {
        Ignored,    ///< unknown setting, invalid value, or not read: nothing was written
        Taken,      ///< written; for "curSwitchMode" always, although it sends nothing
        Refused,    ///< by the device
        NoResponse, ///< the device does not respond; value() is unchanged, but a write may have succeeded
    };

    /// `tables` must outlive this object and its copies.
    explicit CameraConfig(const ValueTables &tables);

    /// Sets the session and clears all values. Sends no request.
    void begin(const ConfigSession &session);

    /// Marks all items, configurations and the channel name as not read. Called after another channel was
    /// selected; readCapabilities() and readItems() read them.
    void markItemsUnread();

    /// Reads the configuration "VideoColor" of a channel. After a failure it is unknown, and its values
    /// cannot be set.
    void readColor(int channel);

    /// Reads the capabilities, the configurations and the name of a channel. If the camera does not have the
    /// selected mode, its first mode is selected. Returns 0 on success, capabilitiesUnknown (10) if the
    /// device does not report its capabilities (no group is supported then), or deviceAway.
    [[nodiscard]] int readCapabilities(int channel);

    /// Reads the items of a channel in the selected mode, for the groups in the capabilities. An item that
    /// the device refuses makes its group unsupported. Returns 0, or deviceAway if the device does not
    /// respond.
    [[nodiscard]] int readItems(int channel);

    [[nodiscard]] QVariant value(const QString &key) const; ///< see cameraValue()
    /// Sets a value of a channel, see changeCamera(). "curSwitchMode" only selects the mode (an index of the
    /// offered modes; an invalid one is ignored) and marks the items as not read. Any other change is written
    /// to the device. After a refused write all values are read again, since other writes of the change may
    /// have succeeded; if that is refused, too, value() is unchanged.
    Outcome setValue(const QString &key, const QVariant &value, const QString &subKey, int channel);

    /// The device library's error of the last setValue() that returned Refused or NoResponse; 0 before the
    /// first one.
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
