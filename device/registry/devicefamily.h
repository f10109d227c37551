#pragma once

#include <QString>

/// The name of the family of devices that the window works with, as every operation of the factory takes it.
inline const QString dhFamily = QStringLiteral("dh");
