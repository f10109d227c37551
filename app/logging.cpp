#include "app/logging.h"

Q_LOGGING_CATEGORY(logApp, "configtools.app", QtInfoMsg)
