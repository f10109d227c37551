#pragma once

#include <QString>

/// The family of all devices in the window: the first argument of the factory's operations.
inline const QString dhFamily = QStringLiteral("dh");
