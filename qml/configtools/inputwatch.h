#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Reports each press of a mouse button or key in a window, before an item receives it. It is C++ because an
/// item receives only its own input. Main thread.
class InputWatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged) ///< not owned
public:
    explicit InputWatch(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    void pressed(); ///< emitted also while a popup is open

private:
    QPointer<QQuickWindow> m_window;
};
