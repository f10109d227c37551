// The operations of the device I/O service.
#include "site/services/mediatokens.h"
#include "site/services/services.h"

#include <array>

namespace site {

namespace {

ServiceResult getServiceCapabilities(ServiceCall &call)
{
    call.response.add("tmd:Capabilities")
        .attribute("VideoSources", channelCount(call.device))
        .attribute("AudioSources", channelCount(call.device))
        .attribute("RelayOutputs", 0)
        .attribute("DigitalInputs", 0);
    return std::nullopt;
}

ServiceResult getVideoSources(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        call.response.add("tmd:Token", videoSourceToken(channel));
    return std::nullopt;
}

ServiceResult getAudioSources(ServiceCall &call)
{
    for (int channel = 0; channel < channelCount(call.device); ++channel)
        call.response.add("tmd:Token", audioSourceToken(channel));
    return std::nullopt;
}

} // namespace

ServiceOperations deviceIoOperations()
{
    static constexpr std::array operations = {
        ServiceOperation{"GetServiceCapabilities", Access::BeforeLogin, getServiceCapabilities},
        ServiceOperation{"GetVideoSources", Access::ReadMedia, getVideoSources},
        ServiceOperation{"GetAudioSources", Access::ReadMedia, getAudioSources},
    };
    return operations;
}

} // namespace site
