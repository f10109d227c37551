#include "sdk/onvif/live/streamend.h"

namespace sdk::onvif {

std::string_view streamEndName(StreamEnd end)
{
    switch (end) {
    case StreamEnd::Stopped:
        return "stopped";
    case StreamEnd::BadUrl:
        return "bad URL";
    case StreamEnd::BadAccount:
        return "account cannot be sent";
    case StreamEnd::Refused:
        return "refused";
    case StreamEnd::NotFound:
        return "not found";
    case StreamEnd::Busy:
        return "busy";
    case StreamEnd::Rejected:
        return "rejected";
    case StreamEnd::ConnectionRefused:
        return "connection refused";
    case StreamEnd::Unreachable:
        return "unreachable";
    case StreamEnd::NoResponse:
        return "no response";
    case StreamEnd::Redirected:
        return "redirected";
    case StreamEnd::Oversized:
        return "oversized response";
    case StreamEnd::Malformed:
        return "malformed response";
    case StreamEnd::Unsupported:
        return "unsupported";
    case StreamEnd::NoKeyFrame:
        return "no key frame";
    case StreamEnd::NoData:
        return "no data";
    case StreamEnd::Ended:
        return "ended by the device";
    case StreamEnd::Failed:
        return "failed";
    }
    return {};
}

} // namespace sdk::onvif
