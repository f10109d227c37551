// The differences between makes of devices that the scene does not define. They follow from the type of a
// device, so that clients are tested with several variants.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "site/soap/xmlwriting.h"

namespace site {

/// The login methods that the devices of a site accept.
enum class LoginChoice
{
    ByDevice, ///< each device accepts those of its make
    Token,    ///< user-name tokens in messages
    Digest,   ///< HTTP Digest
    Both,
};

/// The algorithms of HTTP Digest that the devices of a site offer.
enum class DigestChoice
{
    ByDevice, ///< each device offers those of its make
    Md5,
    Sha256,
    Both,
};

/// The behaviour of one make.
struct DeviceManner
{
    XmlManner xml = XmlManner::UsualPrefixes; ///< the namespace prefixes of its messages
    bool takesToken = true;                   ///< accepts user-name tokens in messages
    bool takesDigest = true;                  ///< accepts HTTP Digest in its services
    bool offersMd5 = true;                    ///< offers and accepts MD5 for Digest
    bool offersSha256 = false;                ///< offers and accepts SHA-256 for Digest
    bool hasMedia2 = true;                    ///< has the second media service ("tr2")
    bool changesAddressAtReboot = false;      ///< changed addresses apply when a reboot is requested
};

/// The manner of the device's type, so that a site has different makes; a device with
/// InitialisationBits::NotReported is older and lacks the second media service. `login` and `digest` replace
/// its login methods and algorithms, unless they are ByDevice.
[[nodiscard]] DeviceManner mannerOf(const sdk::demo::SceneDevice &device, LoginChoice login,
                                    DigestChoice digest);

} // namespace site
