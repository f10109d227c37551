// Position and size of the main window across restarts of the application.
#pragma once

#include <QList>
#include <QObject>
#include <QQmlParserStatus>
#include <QQuickWindow>
#include <QRect>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// Restores position and size of a window before it is shown, and returns the text to store at the end.
/// Text form: "LEFT TOP WIDTH HEIGHT" in pixels of the window while it is not maximised, and " maximised" if
/// it is, such as "120 80 1280 720 maximised". Invalid text has no effect.
///
/// It is C++ because Qt does not keep the normal size of a maximised window, and because the stored position
/// is compared with the current screens. Main thread.
class WindowGeometry : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickWindow *window MEMBER m_window REQUIRED) ///< not owned; parent of this object
    Q_PROPERTY(QString stored MEMBER m_stored)                ///< read once
public:
    explicit WindowGeometry(QObject *parent = nullptr);

    /// The text to store; empty if the window has had no normal size.
    Q_INVOKABLE [[nodiscard]] QString text();

    /// Returns `wanted`, enlarged to `least` and limited to the size of the screen with the largest part of
    /// it (without such a part, of the nearest screen). If no screen shows enough of the title bar to drag
    /// it, the window is moved into that screen.
    [[nodiscard]] static QRect fitted(QRect wanted, QSize least, const QList<QRect> &screens);

    void classBegin() override {}
    void componentComplete() override;

private:
    void note();

    QQuickWindow *m_window = nullptr;
    QString m_stored;
    QRect m_normal; ///< while the window is not maximised
    bool m_isMaximised = false;
    QTimer m_settling; ///< a window is resized before its state becomes "maximised"
};
