// Executes one write request to a camera.
#pragma once

#include "device/dh/camera/camerachanges.h"

/// Sends write requests with the values of a CameraState to one channel. Temporary object for the writes of
/// one change.
class CameraJob
{
public:
    /// `session` and `state` must outlive the job. `channel` is from 0.
    CameraJob(const ConfigSession &session, int channel, const CameraState &state)
        : m_session(session), m_channel(channel), m_state(state)
    {
    }

    /// Sends one write and blocks until the response, at most for the timeout of the request. If the device
    /// refuses it or does not respond, logs the error and returns false: see ConfigSession::isDeviceAway()
    /// and lastError().
    [[nodiscard]] bool run(CameraWrite write) const;

private:
    [[nodiscard]] bool perform(CameraWrite write) const;
    [[nodiscard]] bool writeColorRecord() const;

    template<typename Item>
    [[nodiscard]] bool writeItem(sdk::CameraItem number, const Item &item) const
    {
        return m_session.writeItem(static_cast<std::uint32_t>(number), m_channel, item);
    }

    const ConfigSession &m_session;
    const int m_channel;
    const CameraState &m_state;
};
