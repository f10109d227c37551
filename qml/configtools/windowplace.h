// The place of the main window from one start of the program to the next.
#pragma once

#include <QList>
#include <QObject>
#include <QQmlParserStatus>
#include <QQuickWindow>
#include <QRect>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// Gives a window a stored place and size before it is shown, and returns the text to be stored later.
/// The text is such as "120 80 1280 720 maximised": left, top, width and height of the window while it is not
/// maximised. A text that cannot be read changes nothing.
///
/// It is C++ because the toolkit forgets the size that a maximised window had before, and because the place
/// is held against the screens that are there. Lives on the scene's thread.
class WindowPlace : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickWindow *window MEMBER m_window REQUIRED) ///< not owned; holds this object
    Q_PROPERTY(QString stored MEMBER m_stored)                ///< read once
public:
    explicit WindowPlace(QObject *parent = nullptr);

    Q_INVOKABLE [[nodiscard]] QString text();

    /// `wanted`, not smaller than `least` and not larger than the screen on which most of it is. If none of
    /// the screens shows enough of its title bar to take hold of, it is moved into the nearest one.
    [[nodiscard]] static QRect fitted(QRect wanted, QSize least, const QList<QRect> &screens);

    void classBegin() override {}
    void componentComplete() override;

private:
    void note();

    QQuickWindow *m_window = nullptr;
    QString m_stored;
    QRect m_normal; ///< while the window is not maximised
    bool m_isMaximised = false;
    QTimer m_settling; ///< a window gets the size of a maximised one before it is one
};
