#pragma once

#include <QLoggingCategory>

namespace sdk::demo {

Q_DECLARE_LOGGING_CATEGORY(demoLog)

} // namespace sdk::demo
