#include "favourites/logging.h"

Q_LOGGING_CATEGORY(logFavourites, "configtools.favourites")
