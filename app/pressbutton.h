#pragma once

#include <QPushButton>

/// A button of the widget dialogs, with a hand cursor. It is a separate class because the style sheet
/// (widgetStyle()) selects it by its class name and draws it like a primary button of QML.
class OPressButton : public QPushButton
{
    Q_OBJECT
public:
    explicit OPressButton(const QString &text, QWidget *parent = nullptr);
};
