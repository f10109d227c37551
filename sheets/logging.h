#pragma once

#include <QLoggingCategory>

/// The log messages of workbooks: category "configtools.sheets".
Q_DECLARE_LOGGING_CATEGORY(logSheets)
