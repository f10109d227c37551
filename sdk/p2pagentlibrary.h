#pragma once

namespace sdk {

/// Maps ports of devices behind NAT to local ports of 127.0.0.1.
/// Its roles arrive with the operations that call them.
class P2PAgentLibrary
{
public:
    virtual ~P2PAgentLibrary() = default;
};

} // namespace sdk
