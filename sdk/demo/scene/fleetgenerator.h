// Large sites, made up instead of written down.
#pragma once

#include "sdk/demo/scene/scene.h"

namespace sdk::demo {

class FleetGenerator
{
public:
    /// Makes up a site of `count` devices, 1 to maximumSceneDevices (others are brought into that range). The
    /// same count gives the same site every time, and the devices of a small fleet are the first of a larger.
    /// MACs and addresses (in 10.0.0.0/8) are unique; answers spread over about 2.5 s.
    [[nodiscard]] static Scene generate(int count);
};

} // namespace sdk::demo
