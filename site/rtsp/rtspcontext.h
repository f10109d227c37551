// The common data of the RTSP servers.
#pragma once

#include "site/devicelogins.h"
#include "site/siteoptions.h"

namespace sdk::demo {
class DemoSite;
}

namespace site {

class KeyFrames;
class Poller;

/// The common data of all devices' RTSP servers.
struct RtspContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyFrames &keyFrames;
    Poller &poller;
};

} // namespace site
