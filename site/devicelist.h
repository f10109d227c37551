// The devices of a site as a list that scripts can read.
#pragma once

#include <QString>

namespace sdk::demo {
class DemoSite;
}

namespace site {

/// A line for the host of the installer, then one for each device. The columns are separated by tabs.
[[nodiscard]] QString deviceList(const sdk::demo::DemoSite &site);

} // namespace site
