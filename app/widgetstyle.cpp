#include "app/widgetstyle.h"

QString widgetStyle()
{
    return QStringLiteral("OMessageBox { background: #ffffff; border: 1px solid #d9dfe6; }"
                          "OMessageBox QLabel { color: #1b2430; font-size: 13px; }"
                          "OMessageBox QLabel#title { font-size: 14px; font-weight: 600; }"
                          "OPressButton { min-width: 48px; min-height: 28px; padding: 0 14px;"
                          "  border: 2px solid #1769e0; border-radius: 6px; font-size: 13px;"
                          "  background: #1769e0; color: #ffffff; }"
                          "OPressButton:hover { background: #1259c4; border-color: #1259c4; }"
                          "OPressButton:pressed { background: #0e4ba8; border-color: #0e4ba8; }"
                          "OPressButton:focus { border-color: #b3d1f9; }");
}
