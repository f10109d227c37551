// The blocks of a response to a search.
#pragma once

#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// The response of `device` for `ipVersion` (4 or 6), by its state and its faults. `localAddress` is the
/// address of this host that receives it.
[[nodiscard]] SearchResponse searchResponse(const SceneDevice &device, int ipVersion,
                                            const QString &localAddress);

} // namespace sdk::demo
