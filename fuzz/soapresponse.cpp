#include "fuzz/input.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/onvif/services/mediaservice.h"
#include "sdk/onvif/soap/soapclient.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    sdk::onvif::HttpResponse response;
    response.end = sdk::onvif::HttpEnd::Responded;
    response.status = 200;
    response.body.assign(reinterpret_cast<const char *>(data), size);
    const sdk::onvif::SoapResponse read = sdk::onvif::readSoapResponse(response);
    if (read.isOk() != read.content.exists())
        qFatal("a successful response has no content, or a failed one has content");
    if (!read.isOk())
        return 0;
    static_cast<void>(sdk::onvif::readVideoEncoder(read.content));
    static_cast<void>(sdk::onvif::readAudioEncoder(read.content));
    static_cast<void>(sdk::onvif::xmlDuration(read.content.text()));
    static_cast<void>(read.content.at({"Extension", "Extension"}).number());
    return 0;
}
