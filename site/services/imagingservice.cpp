// The operations of the imaging service.
#include "site/services/imagesettings.h"
#include "site/services/services.h"

#include <array>

using namespace sdk::demo;
using namespace Qt::StringLiterals;

namespace site {

namespace {

ServiceResult noSuchSource()
{
    return SoapFault::invalid("ter:NoSource", u"The video source is unknown"_s);
}

/// Nothing, with a fault, for an unknown or disconnected source.
std::optional<ImageSettings> requestedSettings(const ServiceCall &call, int &channel,
                                               ServiceResult &objection)
{
    const std::optional<int> requested =
        channelOf(call.device, textAt(call.request, "timg:VideoSourceToken").value_or(QString()));
    std::optional<ImageSettings> settings = requested ? imageSettings(call.device, *requested) : std::nullopt;
    if (settings)
        channel = *requested;
    else
        objection = requested
                        ? ServiceResult(SoapFault{false, "ter:ActionNotSupported", "ter:NoImagingForSource",
                                                  u"The image of this source cannot be set"_s})
                        : noSuchSource();
    return settings;
}

ServiceResult getServiceCapabilities(ServiceCall &call)
{
    call.response.add("timg:Capabilities").attribute("ImageStabilization", false).attribute("Presets", false);
    return std::nullopt;
}

ServiceResult getImagingSettings(ServiceCall &call)
{
    int channel = 0;
    ServiceResult objection;
    if (const std::optional<ImageSettings> settings = requestedSettings(call, channel, objection))
        writeImageSettings(call.response.add("timg:ImagingSettings"), *settings);
    return objection;
}

ServiceResult setImagingSettings(ServiceCall &call)
{
    int channel = 0;
    ServiceResult objection;
    std::optional<ImageSettings> settings = requestedSettings(call, channel, objection);
    if (!settings)
        return objection;
    if (!readImageSettings(childNamed(call.request, "timg:ImagingSettings"), *settings))
        return SoapFault::invalid("ter:SettingsInvalid", u"The device does not support these settings"_s);
    return resultOf(takeImageSettings(call, channel, *settings),
                    SoapFault::invalid("ter:SettingsInvalid", u"The device refuses these settings"_s));
}

ServiceResult getOptions(ServiceCall &call)
{
    int channel = 0;
    ServiceResult objection;
    const std::optional<ImageSettings> settings = requestedSettings(call, channel, objection);
    if (!settings)
        return objection;
    if (call.device.hasFault(Fault::RefusesCapabilities))
        return SoapFault::failed(u"The device does not report its capabilities"_s);
    writeImageOptions(call.response.add("timg:ImagingOptions"), call.device, *settings);
    return std::nullopt;
}

} // namespace

ServiceOperations imagingOperations()
{
    static constexpr std::array operations = {
        ServiceOperation{"GetServiceCapabilities", Access::BeforeLogin, getServiceCapabilities},
        ServiceOperation{"GetImagingSettings", Access::ReadMedia, getImagingSettings},
        ServiceOperation{"SetImagingSettings", Access::Actuate, setImagingSettings},
        ServiceOperation{"GetOptions", Access::ReadMedia, getOptions},
    };
    return operations;
}

} // namespace site
