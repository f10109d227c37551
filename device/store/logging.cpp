#include "device/store/logging.h"

Q_LOGGING_CATEGORY(logDevice, "configtools.device")
