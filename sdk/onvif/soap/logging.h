// The log category of sdk/onvif: "configtools.sdk.onvif". Its debug messages are disabled by default.
// Messages contain no passwords.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(logOnvif)
