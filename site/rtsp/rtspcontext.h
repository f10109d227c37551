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

/// The objects that the RTSP servers of all devices share; their owner keeps them longer than the servers.
struct RtspContext
{
    sdk::demo::DemoSite &site;
    const SiteOptions &options;
    DeviceLogins &logins;
    KeyFrames &keyFrames;
    Poller &poller;
};

} // namespace site
