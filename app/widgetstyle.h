#pragma once

#include <QString>

/// Style sheet of OMessageBox and OPressButton with the colours of the light or dark theme of QML.
[[nodiscard]] QString widgetStyle(bool dark);
