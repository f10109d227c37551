#include "media/logging.h"

Q_LOGGING_CATEGORY(logMedia, "configtools.media")
