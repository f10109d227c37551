// Drives a window of the application as a user does: finds items, clicks, types and waits for the results.
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

#include <functional>

/// Drives one window. The names of items are their object names. A failed check ends the process with a
/// message on standard output, the exit code 1 and the image failed.png. Main thread only; the functions
/// process events while they wait.
class Driver
{
public:
    /// Creates the folder for the images. `window` must not be null.
    Driver(QQuickWindow *window, QString imageFolder);

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    [[nodiscard]] const QString &imageFolder() const { return m_imageFolder; }

    /// Makes the window active, so that it gets the keys.
    void activate() const;

    /// The visible item with this object name; of several ones that of the upper dialog. Null if there is
    /// none.
    [[nodiscard]] QQuickItem *find(const QString &name) const;

    /// As find(), but waits up to 15 s for the item; the tour fails if it does not appear.
    QQuickItem *require(const QString &name) const;

    /// The property "text" of an item, which is awaited like by require().
    [[nodiscard]] QString text(const QString &name) const;

    /// The property "text" of every visible item with this object name; does not wait.
    [[nodiscard]] QStringList texts(const QString &name) const;

    // The mouse acts on the centre of an item, which is awaited like by require(). An item that is scrolled
    // out of view is scrolled into view first, except by rightClick().

    /// Clicks an item with the left button, after animations have ended and when nothing blocks the item: no
    /// blocked input, no notice over it. Waits up to 30 s for that.
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// Moves the pointer over an item.
    void hover(const QString &name) const;
    /// As click(), with a double click.
    void doubleClick(const QString &name) const;
    /// Clicks an item with the right button immediately.
    void rightClick(const QString &name) const;
    /// Turns the wheel upwards (downwards if `notches` is negative) at a position of the window.
    void turnWheel(QPointF position, int notches) const;
    /// Presses and releases a key; the focused item receives it.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Types into the focused item. Characters outside of ASCII are entered as by an input method.
    void type(const QString &text) const;

    /// Clicks a field, waits until it has the focus, and replaces its text.
    void fill(const QString &name, const QString &text) const;

    /// Waits for the dialog for files and folders, enters a path, accepts it and waits until the dialog is
    /// closed.
    void acceptFileBox(const QString &path) const;

    /// Waits until `condition` returns true. After `seconds` the tour fails; `what` describes the condition
    /// in the message.
    void await(const QString &what, const std::function<bool()> &condition, int seconds = 15) const;

    /// Waits until no item with this object name is visible, 15 s at most.
    void awaitGone(const QString &name) const;

    /// The tour fails unless `condition` is true; `what` describes the condition in the message.
    void check(bool condition, const QString &what) const;

    /// Waits until animations have ended, saves the image "<number>-<step>.png" of the window, and prints its
    /// name and `seen`. Fails if an item that the keyboard reaches has no name for screen readers. A fault of
    /// the layout is logged as a warning, which fails the tour at its end.
    void report(const QString &step, const QString &seen);

    /// Saves an image "<name>.png" with the same checks as report().
    void save(const QString &name) const;

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
