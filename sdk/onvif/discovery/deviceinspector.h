// The inspection of a found device: requests without a login, from which a search completes its report.
#pragma once

#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/soap/httpclient.h"

#include <chrono>
#include <memory>

namespace sdk::onvif {

/// Completes `device` by requests without a login to `FoundDevice::service`, and blocks up to `wait`. `http`
/// sends the requests; HttpClient::cancel() ends them. Any thread may call it. Sets `state`:
/// Uninitialised if the device returns both its users and its information without a login, otherwise
/// Initialised. Sets FoundDevice::model and the fields after it for an uninitialised device only. Sets an
/// empty `mac` and `isNeighbour` from the neighbour table of this host; if the table lacks the address, `mac`
/// is set from the interfaces of an uninitialised device. Sets the identity of `service` (MAC, otherwise
/// UUID).
///
/// Returns false, with `state` unchanged, if no ONVIF device responds within `wait`, and over HTTPS if its
/// certificate is refused. `mac`, `isNeighbour` and the identity may be set even then.
bool inspectDevice(FoundDevice &device, const std::shared_ptr<HttpClient> &http,
                   std::chrono::milliseconds wait);

} // namespace sdk::onvif
