// Drives the program's window as a user does: looks for what is on it, clicks and types, waits for what
// follows.
#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <QStringList>

#include <functional>

/// Everything on the main thread. A requirement that is not met ends the tour with a message and a last
/// picture.
class Driver
{
public:
    Driver(QQuickWindow *window, QString pictureFolder);

    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    [[nodiscard]] const QString &pictureFolder() const { return m_pictureFolder; }

    /// Makes the window the active one, which gets the keys.
    void activate() const;

    /// The visible item with this object name, null when there is none.
    [[nodiscard]] QQuickItem *find(const QString &name) const;

    /// The same, waited for; the tour ends when it does not come.
    QQuickItem *require(const QString &name) const;

    /// "text" of a visible item.
    [[nodiscard]] QString text(const QString &name) const;

    /// "text" of every visible item with this object name.
    [[nodiscard]] QStringList texts(const QString &name) const;

    /// Clicks the middle of an item, once it has come to rest.
    void click(const QString &name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void hover(const QString &name) const;
    void doubleClick(const QString &name) const;
    void rightClick(const QString &name) const;
    void turnWheel(QPointF place, int notches) const; ///< upwards; `place` is one of the window
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;

    /// Types into the item that has the keyboard. Text that no key makes is put in as an input method does.
    void type(const QString &text) const;

    /// Replaces the text of a field.
    void fill(const QString &name, const QString &text) const;

    /// Answers the desktop's box for files and folders with a path, as a user types it.
    void answerFileBox(const QString &path) const;

    /// Goes on when `condition` holds; ends the tour with `what` when it does not within `seconds`.
    void await(const QString &what, const std::function<bool()> &condition, int seconds = 15) const;

    void check(bool condition, const QString &what) const;

    /// Says what a step has seen, and takes its picture once the window is at rest. All that the keyboard
    /// reaches must have a name for screen readers then. A fault of the layout is a warning.
    void report(const QString &step, const QString &seen);

private:
    /// An item that is at rest and that nothing keeps clicks from.
    [[nodiscard]] QQuickItem *requireForClicks(const QString &name) const;
    [[nodiscard]] bool isUnderNotice(QPoint place) const;
    void atRest() const;
    void checkNames(QQuickItem *item) const;

    QPointer<QQuickWindow> m_window;
    const QString m_pictureFolder;
    int m_pictures = 0;
};
