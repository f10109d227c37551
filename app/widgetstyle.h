#pragma once

#include <QString>

/// The style sheet for all widgets of the application, OMessageBox and OPressButton, with the colours of the
/// light or dark theme of QML.
[[nodiscard]] QString widgetStyle(bool dark);
