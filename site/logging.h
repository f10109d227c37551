// The log category of the simulated site on a network: "configtools.site".
#pragma once

#include <QLoggingCategory>

namespace site {

/// Its warnings are failures of the host, such as a port that is in use.
Q_DECLARE_LOGGING_CATEGORY(siteLog)

} // namespace site
