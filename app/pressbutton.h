#pragma once

#include <QPushButton>

/// A button of the widget dialogs. widgetStyle() draws it like a primary button of QML.
class OPressButton : public QPushButton
{
    Q_OBJECT
public:
    explicit OPressButton(const QString &text, QWidget *parent = nullptr);
};
