#include "sdk/onvif/mapping/cameramapping.h"

namespace sdk::onvif {

std::string colorConfiguration(OnvifSession &, int, OnvifSession::Deadline, NetError &error)
{
    error = NetError::NotSupported;
    return {};
}

NetError setColorConfiguration(OnvifSession &, int, std::string_view, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError cameraItem(OnvifSession &, std::uint32_t, int, void *, std::uint32_t, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError setCameraItem(OnvifSession &, std::uint32_t, int, const void *, std::uint32_t, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError cameraCapabilities(OnvifSession &, const CameraCapabilityInput &, CameraCapabilities &,
                            OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

} // namespace sdk::onvif
