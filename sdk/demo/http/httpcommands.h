// The commands of a simulated device's web service, all below /cgi-bin/.
#pragma once

#include "sdk/demo/http/httpmessage.h"

#include <QString>

namespace sdk::demo {

class SiteState;

/// Runs the command of `target`, of which the path and the query are used, on the device `mac` and returns
/// the response: a text, an image or a recording (/cgi-bin/help lists the commands). Locks the site for short
/// periods, so the caller must not hold its lock. The caller has checked the credentials. An unknown command,
/// or device, has a response with HttpStatus::NotFound. With an invalid or unknown parameter, and if the
/// device refuses, nothing changes: the response has HttpStatus::BadRequest and a sentence with the reason.
[[nodiscard]] HttpResponse runHttpCommand(SiteState &site, const QString &mac, const HttpTarget &target);

} // namespace sdk::demo
