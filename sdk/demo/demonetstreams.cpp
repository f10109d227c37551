// Live streams of simulated devices.
#include "sdk/demo/demoerror.h"
#include "sdk/demo/demonetlibrary.h"

namespace sdk::demo {

std::int64_t DemoNetLibrary::NetStartRealStream(std::int64_t, std::int32_t, std::uintptr_t, LiveStreamKind)
{
    return 0;
}

bool DemoNetLibrary::NetSetRealDataCallback(std::int64_t, RealDataHandler, void *, std::uint32_t)
{
    return false;
}

bool DemoNetLibrary::NetStreamFollowUp(std::int64_t, std::int32_t, std::uint32_t)
{
    return false;
}

bool DemoNetLibrary::NetStopRealStream(std::int64_t)
{
    return false;
}

bool DemoNetLibrary::NetQueryChannelStates(std::int64_t, ChannelStates &, std::chrono::milliseconds)
{
    return false;
}

} // namespace sdk::demo
