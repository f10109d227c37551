#pragma once

#include <QString>

/// The name of the only device family that the window uses: the first argument of the operations of
/// CDeviceFactory.
inline const QString dhFamily = QStringLiteral("dh");
