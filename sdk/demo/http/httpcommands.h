// The commands of a simulated device's web service, all below /cgi-bin/.
#pragma once

#include "sdk/demo/http/httpmessage.h"

#include <QString>

namespace sdk::demo {

class SiteState;

/// Runs the command of `target` on the device and returns the response. An invalid or unknown parameter
/// changes nothing; the response names it.
[[nodiscard]] HttpResponse runHttpCommand(SiteState &site, const QString &mac, const HttpTarget &target);

} // namespace sdk::demo
