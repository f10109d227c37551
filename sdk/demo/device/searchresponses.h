// The block of a device's response to a search.
#pragma once

#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// The response of `device` with its address of `ipVersion` (4 or 6). Faults change its strings (OddBytes,
/// OverLongTexts), except for the addresses and the MAC, and its state (NotInitialised). `localAddress` is
/// the address of this host that receives the response.
[[nodiscard]] SearchResponse searchResponse(const SceneDevice &device, int ipVersion,
                                            const QString &localAddress);

} // namespace sdk::demo
