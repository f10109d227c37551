#pragma once

#include <QLoggingCategory>

/// The log messages of commands: category "configtools.cgi". Debug messages contain the first 16,384
/// characters of each text response, which may hold secrets of the device. No message contains an account.
Q_DECLARE_LOGGING_CATEGORY(logCgi)
