#pragma once

#include <QLoggingCategory>

/// The log messages of the start-up and the settings: category "configtools.app", without debug messages by
/// default.
Q_DECLARE_LOGGING_CATEGORY(logApp)
