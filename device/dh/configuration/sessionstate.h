// The current session's device, as the configuration pages know it.
#pragma once

#include "device/dh/camera/cameraconfig.h"
#include "device/dh/encode/channelchoice.h"
#include "device/dh/encode/encodeconfig.h"
#include "device/dh/session/channelnames.h"

/// A value. Work on another thread takes a copy along; when it has ended, the copy takes the place of the
/// original on the scene's thread. So nobody waits for a lock, and what the scene reads meanwhile is whole.
struct SessionState
{
    /// Of no session. `tables` must outlive this and its copies.
    explicit SessionState(const ValueTables &tables) : encode(tables), camera(tables) {}

    /// Turns to a new session; nothing is known of its device yet.
    void begin(const ConfigSession &newSession, const QString &newIpport, int channelCount);

    ConfigSession session;
    QString ipport;
    ChannelChoice channels;
    ChannelNames names;
    EncodeConfig encode;
    CameraConfig camera;
};
