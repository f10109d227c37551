#include "app/pressbutton.h"

#include "app/widgetstyle.h"

OPressButton::OPressButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(widgetStyle());
}
