// Drives the application's window as a user does: finds items, clicks, types and waits for the results.
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

#include <functional>

/// Main thread only. A failed check ends the tour with a message and the image failed.png.
class Driver
{
public:
    Driver(QQuickWindow *window, QString imageFolder);

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    [[nodiscard]] const QString &imageFolder() const { return m_imageFolder; }

    /// Makes the window active, so that it gets the keys.
    void activate() const;

    /// The visible item with this object name; null if there is none.
    [[nodiscard]] QQuickItem *find(const QString &name) const;

    /// Waits for the item; the tour fails if it does not appear.
    QQuickItem *require(const QString &name) const;

    /// "text" of a visible item.
    [[nodiscard]] QString text(const QString &name) const;

    /// "text" of every visible item with this object name.
    [[nodiscard]] QStringList texts(const QString &name) const;

    // Items that are scrolled out of view are scrolled into view before the mouse acts on them.

    /// Clicks the centre of an item after animations have ended.
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void hover(const QString &name) const;
    void doubleClick(const QString &name) const;
    void rightClick(const QString &name) const;
    void turnWheel(QPointF position, int notches) const; ///< upwards; `position` is a position in the window
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Types into the focused item. Characters without a key are entered as by an input method.
    void type(const QString &text) const;

    /// Replaces the text of a field.
    void fill(const QString &name, const QString &text) const;

    /// Enters a path in the dialog for files and folders.
    void acceptFileBox(const QString &path) const;

    /// Waits until `condition` is true. The tour fails with the message `what` after `seconds`.
    void await(const QString &what, const std::function<bool()> &condition, int seconds = 15) const;

    /// Waits until no item with this object name is visible.
    void awaitGone(const QString &name) const;

    void check(bool condition, const QString &what) const;

    /// Prints `seen` and saves an image after animations have ended. Fails if an item that the keyboard
    /// reaches has no name for screen readers. A fault of the layout is a warning.
    void report(const QString &step, const QString &seen);

private:
    /// Waits until animations have ended and the item accepts clicks.
    [[nodiscard]] QQuickItem *requireForClicks(const QString &name) const;
    [[nodiscard]] bool isUnderNotice(QPoint position) const;
    void atRest() const;
    void checkNames(QQuickItem *item) const;

    QPointer<QQuickWindow> m_window;
    const QString m_imageFolder;
    int m_images = 0;
};
