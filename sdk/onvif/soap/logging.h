// The category of all log messages of sdk/onvif.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(logOnvif)
