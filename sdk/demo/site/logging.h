// The log category of the simulated site: "configtools.sdk.demo".
#pragma once

#include <QLoggingCategory>

namespace sdk::demo {

Q_DECLARE_LOGGING_CATEGORY(demoLog)

} // namespace sdk::demo
