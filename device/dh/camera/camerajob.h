// One write to a camera.
#pragma once

#include "device/dh/camera/camerachanges.h"

/// Made for one change and gone after it. Blocks for the wait of the library.
class CameraJob
{
public:
    /// `session` and `state` must outlive the job.
    CameraJob(const ConfigSession &session, int channel, const CameraState &state)
        : m_session(session), m_channel(channel), m_state(state)
    {
    }

    /// Returns false when the device does not take it; the log says why.
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
