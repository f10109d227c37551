// The state of the configuration pages for one session.
#pragma once

#include "device/dh/camera/cameraconfig.h"
#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodeconfig.h"
#include "device/dh/session/channelnames.h"

/// State of both configuration pages: selected channels, and values read from the current session's device.
/// A value type: work on another thread uses a copy, which replaces the original on the main thread when the
/// work has ended. This needs no lock, and readers on the main thread always see a consistent state.
struct SessionState
{
    /// State without a session. `tables` must outlive this object and its copies.
    explicit SessionState(const ValueTables &tables) : encode(tables), camera(tables) {}

    /// Sets the session and clears all values; sends no request. `channelCount` is the number that the
    /// device reported at the login.
    void begin(const ConfigSession &newSession, const QString &newIpport, int channelCount);

    ConfigSession session; ///< does not own the login, see CurrentSession
    QString ipport;        ///< address and port of the device; empty without a session
    ChannelChoice channels;
    ChannelNames names; ///< the results of writes of channel names, not the names
    EncodeConfig encode;
    CameraConfig camera;
};
