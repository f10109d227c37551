#pragma once

#include <QDialog>

/// A message box for errors before QML is loaded: modal and frameless, with a title, a text and one button.
/// The colours are those of widgetStyle(), the style sheet of the application. Requires the QApplication.
class OMessageBox : public QDialog
{
    Q_OBJECT
public:
    /// `text` is plain text; the user can select it.
    OMessageBox(const QString &title, const QString &text, QWidget *parent = nullptr);

    /// Shows a message box and blocks, with a running event loop, until the user has closed it.
    static void show(const QString &title, const QString &text);
};
