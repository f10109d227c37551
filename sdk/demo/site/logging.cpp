#include "sdk/demo/site/logging.h"

namespace sdk::demo {

Q_LOGGING_CATEGORY(demoLog, "configtools.sdk.demo")

} // namespace sdk::demo
