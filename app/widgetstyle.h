#pragma once

#include <QString>

/// Style sheet of the shell's widgets, in the colours of the scene's light or dark theme, which widgets
/// cannot read.
[[nodiscard]] QString widgetStyle(bool dark);
