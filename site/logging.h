#pragma once

#include <QLoggingCategory>

namespace site {

Q_DECLARE_LOGGING_CATEGORY(siteLog)

} // namespace site
