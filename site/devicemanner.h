// What differs between the makes of devices on a site, beside what their scene says.
#pragma once

#include "sdk/demo/scene.h"
#include "site/soap/xmlwriting.h"

namespace site {

/// Which logins the program lets devices take.
enum class LoginChoice
{
    ByDevice,
    Token,  ///< user-name tokens in messages
    Digest, ///< HTTP Digest
    Both,
};

/// Which algorithms of HTTP Digest devices offer.
enum class DigestChoice
{
    ByDevice,
    Md5,
    Sha256,
    Both,
};

struct DeviceManner
{
    XmlManner xml = XmlManner::UsualPrefixes;
    bool takesToken = true;
    bool takesDigest = true;
    bool offersMd5 = true;
    bool offersSha256 = false;
    bool hasMedia2 = true;
    bool changesAddressAtReboot = false; ///< a new address holds from the next start on
};

/// By the type of the device, so that a site has some of each.
[[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device, LoginChoice login,
                                    DigestChoice digest);

} // namespace site
