#pragma once

#include <QLoggingCategory>

/// The log lines of live views and snapshots.
Q_DECLARE_LOGGING_CATEGORY(logMedia)
