#pragma once

#include <QDialog>

/// The shell's message box, for what is to be said while there is no scene. Modal and frameless, with a
/// title, a text and one button.
class OMessageBox : public QDialog
{
    Q_OBJECT
public:
    OMessageBox(const QString &title, const QString &text, QWidget *parent = nullptr);

    /// Shows a box and returns when the user has closed it.
    static void show(const QString &title, const QString &text);
};
