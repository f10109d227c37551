#include "app/pressbutton.h"

OPressButton::OPressButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(QStringLiteral("OPressButton { min-width: 64px; min-height: 32px; padding: 0 12px;"
                                 "  border: none; border-radius: 6px; background: #1769e0; color: #ffffff; }"
                                 "OPressButton:hover { background: #145cc5; }"
                                 "OPressButton:pressed { background: #114fa9; }"
                                 "OPressButton:focus { border: 2px solid #a7c8f6; }"));
}
