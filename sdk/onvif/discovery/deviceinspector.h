// The inspection of a found device without a login.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/soap/httpclient.h"

#include <chrono>
#include <memory>

namespace sdk::onvif {

/// Completes `device`: its MAC from the neighbour table and its initialisation state. A device that lists its
/// users without a login has no administrator; the remaining information is then read without a login as
/// well. Blocks up to `wait`. Returns false if no server at the service's address uses the protocol.
bool inspectDevice(FoundDevice &device, const std::shared_ptr<HttpClient> &http,
                   std::chrono::milliseconds wait);

} // namespace sdk::onvif
