// What the program was started with, as far as the devices need it.
#pragma once

#include "site/devicemanner.h"

#include <QString>

namespace site {

struct SiteOptions
{
    LoginChoice login = LoginChoice::ByDevice;
    DigestChoice digest = DigestChoice::ByDevice;
    QString recordFolder; ///< for every message of a service; empty for none
    bool newKeys = false; ///< a device makes another key for HTTPS each time it comes to the network

    [[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device) const
    {
        return site::mannerOf(device, login, digest);
    }
};

} // namespace site
