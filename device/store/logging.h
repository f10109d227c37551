#pragma once

#include <QLoggingCategory>

/// The log category "configtools.device" of all code in the folder device.
Q_DECLARE_LOGGING_CATEGORY(logDevice)
