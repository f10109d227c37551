// The devices of a site as a list that scripts can read.
#pragma once

#include <QString>

namespace sdk::demo {
class DemoSite;
}

namespace site {

/// The first line is for the host of the installer: "installer", and its IPv4 address with the prefix length
/// ("192.168.1.10/24"). A line for each device follows, in the order of the scene. Each line has a line end.
/// The columns are separated by tabs:
/// - "device", "elsewhere" (a device of another segment) or "left-out" (a device that cannot be on a network;
///   the remarks have the reason)
/// - MAC
/// - IPv4 address, IPv6 address (two columns); "-" if missing
/// - type
/// - model
/// - accounts with their passwords: "user/password", separated by spaces; "-" without accounts
/// - name
/// - remarks in English, separated by "; "; may be empty
[[nodiscard]] QString deviceList(const sdk::demo::DemoSite &site);

} // namespace site
