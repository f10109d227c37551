#pragma once

#include <QLoggingCategory>

/// The log messages of commands: category "configtools.cgi".
Q_DECLARE_LOGGING_CATEGORY(logCgi)
