// Generated scenes of any size.
#pragma once

#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

/// Generates the scene "fleet:N". Has no state, so any thread may call it.
class FleetGenerator
{
public:
    /// Generates a scene of `count` devices, clamped to 1 to maximumSceneDevices. The same count gives the
    /// same scene every time, and the devices of a small fleet are the first of a larger one. MACs and
    /// addresses (IPv4, in 10.0.0.0/8) are unique. The devices have no faults. Their responses to a search
    /// are spread over about 2.5 s.
    [[nodiscard]] static Scene generate(int count);
};

} // namespace sdk::demo
