// The blocks that a simulated device answers a search with.
#pragma once

#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// The answer of `device` for `ipVersion` (4 or 6) as its state and its faults make it. `localAddress` is the
/// address of this computer that receives it.
[[nodiscard]] SearchAnswer searchAnswer(const SceneDevice &device, int ipVersion,
                                        const QString &localAddress);

} // namespace sdk::demo
