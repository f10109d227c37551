#include "qml/configtools/inputwatch.h"

#include <QCoreApplication>
#include <QEvent>

void InputWatch::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    m_window = window;
    // On the application: a filter of the window does not receive presses while a popup is open.
    if (m_window)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
    Q_EMIT windowChanged();
}

bool InputWatch::eventFilter(QObject *watched, QEvent *event)
{
    // The type is checked first: a window that is being destroyed, which gets no presses, is no QQuickWindow
    // any longer.
    if ((event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) &&
        watched == m_window)
        Q_EMIT pressed();
    return false;
}
