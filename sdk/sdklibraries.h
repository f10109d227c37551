// The libraries that the application uses, as one value.
#pragma once

#include <memory>

namespace sdk {

class Clock;
class ConfigLibrary;
class DecoderLibrary;
class NetLibrary;
class P2PAgentLibrary;

/// The implementations of the library interfaces. The application chooses them once at start-up, and shares
/// them by copies of this value; tests create others. A library that is not available is null: its features
/// are disabled then.
struct SdkLibraries
{
    std::shared_ptr<NetLibrary> net;
    std::shared_ptr<ConfigLibrary> config;
    std::shared_ptr<DecoderLibrary> decoder;
    std::shared_ptr<P2PAgentLibrary> p2pAgent;
    std::shared_ptr<Clock> clock; ///< of all timeouts and timestamps; never null after start-up
};

} // namespace sdk
