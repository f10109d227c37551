#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Reports each press of a mouse button or key in a window, before an item receives it. The press is not
/// consumed. It is C++ because an item receives only its own input. Main thread.
class InputWatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The observed window; null observes nothing. Not owned, and may be destroyed first.
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged)
public:
    explicit InputWatch(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    /// A mouse button or key was pressed in the window; repeated for a held key. Emitted also while a popup
    /// of the window is open, and not for touches and the wheel.
    void pressed();

private:
    QPointer<QQuickWindow> m_window;
};
