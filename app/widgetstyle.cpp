#include "app/widgetstyle.h"

namespace {

/// Copies of the colours of Theme.qml, which widgets cannot read.
struct WidgetColours
{
    const char *surface;
    const char *line;
    const char *text;
    const char *accent;
    const char *accentText;
    const char *accentHover;
    const char *accentPressed;
    const char *focusRing;
};

constexpr WidgetColours lightColours{.surface = "#ffffff",
                                     .line = "#d9dfe6",
                                     .text = "#1b2430",
                                     .accent = "#1769e0",
                                     .accentText = "#ffffff",
                                     .accentHover = "#1259c4",
                                     .accentPressed = "#0e4ba8",
                                     .focusRing = "#b3d1f9"};
constexpr WidgetColours darkColours{.surface = "#1a212b",
                                    .line = "#313c4b",
                                    .text = "#e6ebf2",
                                    .accent = "#72aaf8",
                                    .accentText = "#0a1420",
                                    .accentHover = "#86b7fa",
                                    .accentPressed = "#a0c7fb",
                                    .focusRing = "#2b5288"};

} // namespace

QString widgetStyle(bool dark)
{
    const WidgetColours &colours = dark ? darkColours : lightColours;
    return QStringLiteral("OMessageBox { background: %1; border: 1px solid %2; }"
                          "OMessageBox QLabel { color: %3; font-size: 13px; }"
                          "OMessageBox QLabel#title { font-size: 14px; font-weight: 600; }"
                          "OPressButton { min-width: 48px; min-height: 28px; padding: 0 14px;"
                          "  border: 2px solid %4; border-radius: 6px; font-size: 13px;"
                          "  background: %4; color: %5; }"
                          "OPressButton:hover { background: %6; border-color: %6; }"
                          "OPressButton:pressed { background: %7; border-color: %7; }"
                          "OPressButton:focus { border-color: %8; }")
        .arg(QLatin1StringView(colours.surface), QLatin1StringView(colours.line),
             QLatin1StringView(colours.text), QLatin1StringView(colours.accent),
             QLatin1StringView(colours.accentText), QLatin1StringView(colours.accentHover),
             QLatin1StringView(colours.accentPressed), QLatin1StringView(colours.focusRing));
}
