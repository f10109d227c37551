#include "site/devicemanner.h"

namespace site {

DeviceManner mannerOf(const sdk::demo::SceneDevice &device, LoginChoice login, DigestChoice digest)
{
    DeviceManner manner;
    // Devices without initialisation are also older than these features.
    const bool isOld = device.initialisation == sdk::InitialisationBits::NotReported;
    manner.hasMedia2 = !isOld;
    if (device.type == QLatin1String("NVR")) {
        manner.xml = XmlManner::OwnPrefixes;
        manner.offersSha256 = !isOld;
    } else if (device.type == QLatin1String("SVR") || device.type == QLatin1String("PC-NVR")) {
        manner.xml = XmlManner::Defaults;
        manner.takesDigest = false;
        manner.changesAddressAtReboot = true;
    } else if (device.type == QLatin1String("SD")) {
        manner.xml = XmlManner::OwnPrefixes;
        manner.takesToken = false;
        manner.offersSha256 = true;
        manner.offersMd5 = false;
    } else if (device.type == QLatin1String("ITC")) {
        manner.xml = XmlManner::Defaults;
    }
    if (login != LoginChoice::ByDevice) {
        manner.takesToken = login != LoginChoice::Digest;
        manner.takesDigest = login != LoginChoice::Token;
    }
    if (digest != DigestChoice::ByDevice) {
        manner.offersMd5 = digest != DigestChoice::Sha256;
        manner.offersSha256 = digest != DigestChoice::Md5;
    }
    return manner;
}

} // namespace site
