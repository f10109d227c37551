// The command line options that the devices use.
#pragma once

#include "site/devicemanner.h"

#include <QString>

namespace site {

/// The options of all devices of a site.
struct SiteOptions
{
    LoginChoice login = LoginChoice::ByDevice;
    DigestChoice digest = DigestChoice::ByDevice;
    QString recordFolder; ///< every message of a service is written to a file in it; empty for none
    /// A device creates another HTTPS key at each start and after a change of its addresses or ports.
    /// Otherwise it keeps its key until the process ends.
    bool newKeys = false;

    /// The manner of the device with these options.
    [[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device) const
    {
        return site::mannerOf(device, login, digest);
    }
};

} // namespace site
