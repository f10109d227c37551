#pragma once

#include <QLoggingCategory>

/// The log category "configtools.media" of live views and snapshots.
Q_DECLARE_LOGGING_CATEGORY(logMedia)
