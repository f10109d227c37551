#pragma once

#include <QLoggingCategory>

namespace site {

/// The log lines of the simulated site on a network.
Q_DECLARE_LOGGING_CATEGORY(siteLog)

} // namespace site
