// The inspection of a found device without a login.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/soap/httpclient.h"

#include <chrono>
#include <memory>

namespace sdk::onvif {

/// Completes `device` by requests without a login, and blocks up to `wait`. Sets `mac`, if it is empty, from
/// the neighbour table, and the identity of `service`. Sets `state`: Uninitialised if the device returns both
/// its users and its information without a login, otherwise Initialised. The fields that need an open device
/// (FoundDevice::model and those after it) are set for an uninitialised device only.
///
/// Returns false, with `state` unchanged, if no device responds with this protocol within `wait`. `mac` and
/// the identity may be set even then.
bool inspectDevice(FoundDevice &device, const std::shared_ptr<HttpClient> &http,
                   std::chrono::milliseconds wait);

} // namespace sdk::onvif
