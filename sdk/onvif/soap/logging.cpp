#include "sdk/onvif/soap/logging.h"

Q_LOGGING_CATEGORY(logOnvif, "configtools.sdk.onvif", QtInfoMsg)
