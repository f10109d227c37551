#include "sdk/onvif/mapping/encodemapping.h"

namespace sdk::onvif {

std::string encodeConfiguration(OnvifSession &, int, OnvifSession::Deadline, NetError &error)
{
    error = NetError::NotSupported;
    return {};
}

NetError setEncodeConfiguration(OnvifSession &, int, std::string_view, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError encodeItem(OnvifSession &, std::uint32_t, int, void *, std::uint32_t, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError setEncodeItem(OnvifSession &, std::uint32_t, int, const void *, std::uint32_t, OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

NetError encodeCapabilities(OnvifSession &, const EncodeCapabilityInput &, EncodeCapabilities &,
                            OnvifSession::Deadline)
{
    return NetError::NotSupported;
}

} // namespace sdk::onvif
