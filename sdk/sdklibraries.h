#pragma once

#include <memory>

namespace sdk {

class Clock;
class ConfigLibrary;
class DecoderLibrary;
class NetLibrary;
class P2PAgentLibrary;

/// The closed libraries of the device maker as one value. Start-up chooses it once, before anything else
/// asks; tests make their own. A role that nothing fills is null, and what needs it does nothing.
struct SdkLibraries
{
    std::shared_ptr<NetLibrary> net;
    std::shared_ptr<ConfigLibrary> config;
    std::shared_ptr<DecoderLibrary> decoder;
    std::shared_ptr<P2PAgentLibrary> p2pAgent;
    std::shared_ptr<Clock> clock; ///< never null: the time that devices and waits run on
};

} // namespace sdk
