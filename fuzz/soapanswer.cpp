#include "fuzz/input.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/onvif/services/mediaservice.h"
#include "sdk/onvif/soap/soapclient.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::disableLogging();
    sdk::onvif::HttpAnswer answer;
    answer.end = sdk::onvif::HttpEnd::Answered;
    answer.status = 200;
    answer.body.assign(reinterpret_cast<const char *>(data), size);
    const sdk::onvif::SoapAnswer read = sdk::onvif::readSoapAnswer(answer);
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
