#pragma once

#include <QString>

/// The Qt style sheet for the only widgets of the application, OMessageBox and OPressButton, with the colours
/// of the light or (if `dark`) dark theme of QML.
[[nodiscard]] QString widgetStyle(bool dark);
