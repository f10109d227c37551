#pragma once

#include <memory>

namespace sdk {

class Clock;
class ConfigLibrary;
class DecoderLibrary;
class NetLibrary;
class P2PAgentLibrary;

/// The implementations of the library interfaces as one value. The application chooses it once at start-up;
/// tests create others. A library that is not available is null: its features are disabled then.
struct SdkLibraries
{
    std::shared_ptr<NetLibrary> net;
    std::shared_ptr<ConfigLibrary> config;
    std::shared_ptr<DecoderLibrary> decoder;
    std::shared_ptr<P2PAgentLibrary> p2pAgent;
    std::shared_ptr<Clock> clock; ///< of all timeouts and timestamps; never null after start-up
};

} // namespace sdk
