#pragma once

#include <QPushButton>

/// A button of the shell's widget dialogs, drawn like the scene's primary buttons.
class OPressButton : public QPushButton
{
    Q_OBJECT
public:
    explicit OPressButton(const QString &text, QWidget *parent = nullptr);
};
