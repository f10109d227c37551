#include "site/logging.h"

namespace site {

Q_LOGGING_CATEGORY(siteLog, "configtools.site")

} // namespace site
