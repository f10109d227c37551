// The log category of sdk/onvif: "configtools.sdk.onvif". Messages contain no passwords.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(logOnvif)
