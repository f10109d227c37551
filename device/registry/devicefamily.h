#pragma once

#include <QString>

/// The name of the device family, which is the name of a back end in CDeviceFactory: the first argument of
/// its operations. The other families have no operations.
inline const QString dhFamily = QStringLiteral("dh");
