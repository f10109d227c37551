#include "sheets/logging.h"

Q_LOGGING_CATEGORY(logSheets, "configtools.sheets")
