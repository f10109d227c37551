// The devices of a site as a list to read, also by scripts.
#pragma once

#include <QString>

namespace sdk::demo {
class DemoSite;
}

namespace site {

/// A line for the installer's computer, then one for each device, their columns parted by tabulators.
[[nodiscard]] QString deviceList(const sdk::demo::DemoSite &site);

} // namespace site
