// What can be asked of a found device without a login.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/soap/httpclient.h"

#include <chrono>
#include <memory>

namespace sdk::onvif {

/// Completes `device`: its MAC from the neighbour table, and whether it waits for its first password. A
/// device that lists its users to anybody has no administrator; then everything else is asked openly as well.
/// Blocks up to `wait`. Returns false if nothing at the service's address speaks the protocol.
bool inspectDevice(FoundDevice &device, const std::shared_ptr<HttpClient> &http,
                   std::chrono::milliseconds wait);

} // namespace sdk::onvif
