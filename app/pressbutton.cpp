#include "app/pressbutton.h"

OPressButton::OPressButton(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setCursor(Qt::PointingHandCursor);
}
