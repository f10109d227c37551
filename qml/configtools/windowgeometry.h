// Position and size of the main window across restarts of the application.
#pragma once

#include <QList>
#include <QObject>
#include <QQmlParserStatus>
#include <QQuickWindow>
#include <QRect>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// Restores position and size of a window before it is shown, and returns the text to store at the end. QML
/// stores the text. Its form is "LEFT TOP WIDTH HEIGHT", then " maximised" if the window is maximised or in
/// full screen, such as "120 80 1280 720 maximised". The numbers are the geometry of the window while it is
/// not maximised, in device-independent pixels of the desktop. Invalid text has no effect.
///
/// It is C++ because Qt does not keep the normal size of a maximised window, and because the stored position
/// is compared with the current screens. Main thread.
class WindowGeometry : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickWindow *window MEMBER m_window REQUIRED) ///< not owned; must outlive this object
    Q_PROPERTY(QString stored MEMBER m_stored)                ///< the stored text; read once, at completion
public:
    explicit WindowGeometry(QObject *parent = nullptr);

    /// The text to store; empty if the window has had no normal size. A minimised or hidden window has its
    /// last state.
    Q_INVOKABLE [[nodiscard]] QString text();

    /// Returns a rectangle for a window that wants the rectangle `wanted`. Its screen is the one of `screens`
    /// with the largest part of `wanted`, or the nearest one if no screen has a part of it. The size is
    /// enlarged to `least` and limited to the size of that screen. If no screen shows enough of the title bar
    /// to drag the window, the rectangle is moved into that screen. Without screens, `wanted` is returned.
    [[nodiscard]] static QRect fitted(QRect wanted, QSize least, const QList<QRect> &screens);

    void classBegin() override {}
    void componentComplete() override;

private:
    void note();

    QQuickWindow *m_window = nullptr;
    QString m_stored;
    QRect m_normal; ///< while the window is not maximised
    bool m_isMaximised = false;
    QTimer m_settling; ///< delays note(): a window is resized before its state becomes "maximised"
};
