// The differences between makes of devices that the scene does not define.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "site/soap/xmlwriting.h"

namespace site {

/// The login methods that devices accept.
enum class LoginChoice
{
    ByDevice,
    Token,  ///< user-name tokens in messages
    Digest, ///< HTTP Digest
    Both,
};

/// The algorithms of HTTP Digest that devices offer.
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
    bool changesAddressAtReboot = false; ///< a new address is used after the next restart
};

/// Depends on the type of the device, so that a site has different makes.
[[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device, LoginChoice login,
                                    DigestChoice digest);

} // namespace site
