// Windows other than the main window.
#pragma once

#include "tests/tour/driver/driver.h"

#include <QGuiApplication>

/// The visible window with this object name; null if there is none.
inline QQuickWindow *visibleWindow(const QString &name)
{
    for (QWindow *candidate : QGuiApplication::topLevelWindows()) {
        if (candidate->objectName() == name && candidate->isVisible())
            return qobject_cast<QQuickWindow *>(candidate);
    }
    return nullptr;
}

/// Waits for the window with this object name, up to 15 s, and returns it; the tour fails if it does not
/// open.
inline QQuickWindow *awaitWindow(const Driver &driver, const QString &name)
{
    driver.await(QStringLiteral("the window \"%1\" opens").arg(name), [&] {
        const QQuickWindow *window = visibleWindow(name);
        return window && window->isExposed();
    });
    return visibleWindow(name);
}

/// Waits until the window of `other` is closed. The application destroys it then.
inline void awaitClosed(const Driver &driver, const Driver &other)
{
    driver.await(QStringLiteral("the window is closed"),
                 [&] { return !other.window() || !other.window()->isVisible(); });
}
