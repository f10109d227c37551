#include "cgi/logging.h"

Q_LOGGING_CATEGORY(logCgi, "configtools.cgi")
