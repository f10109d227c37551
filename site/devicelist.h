// The devices of a site as a list that scripts can read.
#pragma once

#include <QString>

namespace sdk::demo {
class DemoSite;
}

namespace site {

/// A line for the host of the installer ("installer", address/prefix length), then one for each device. The
/// columns are separated by tabs: "device", "elsewhere" (another segment) or "left-out"; MAC; IPv4 and IPv6
/// address; type; model; accounts ("user/password", separated by spaces); name; remarks. A missing address
/// and missing accounts are "-".
[[nodiscard]] QString deviceList(const sdk::demo::DemoSite &site);

} // namespace site
