#pragma once

#include <QLoggingCategory>

/// The log messages of saved devices and accounts: category "configtools.favourites".
Q_DECLARE_LOGGING_CATEGORY(logFavourites)
