#include "device/registry/logging.h"

Q_LOGGING_CATEGORY(logDevice, "configtools.device")
