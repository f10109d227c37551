// The command line options that the devices use.
#pragma once

#include "site/devicemanner.h"

#include <QString>

namespace site {

struct SiteOptions
{
    LoginChoice login = LoginChoice::ByDevice;
    DigestChoice digest = DigestChoice::ByDevice;
    QString recordFolder; ///< for every message of a service; empty for none
    bool newKeys = false; ///< a device creates another HTTPS key at each start

    [[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device) const
    {
        return site::mannerOf(device, login, digest);
    }
};

} // namespace site
