// What a simulated device does on the commands of its web service, all below /cgi-bin/.
#pragma once

#include "sdk/demo/http/httpmessage.h"

#include <QString>

namespace sdk::demo {

class SiteState;

/// Runs the command of `target` on the device and returns its answer. A parameter that is wrong, or that the
/// command does not have, changes nothing and is answered by a line that says so.
[[nodiscard]] HttpReply runHttpCommand(SiteState &site, const QString &mac, const HttpTarget &target);

} // namespace sdk::demo
