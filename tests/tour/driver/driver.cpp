#include "tests/tour/driver/driver.h"

#include "tests/tour/driver/layoutcheck.h"

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <QTextStream>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

QQuickItem *findBelow(QQuickItem *item, const QString &name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    // Starts with the last child, so that the upper one of two dialogs is found.
    const QList<QQuickItem *> children = item->childItems();
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (QQuickItem *found = findBelow(*child, name))
            return found;
    }
    return nullptr;
}

void collectBelow(QQuickItem *item, const QString &name, QList<const QQuickItem *> &found)
{
    if (!item->isVisible())
        return;
    if (item->objectName() == name)
        found.append(item);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectBelow(child, name, found);
}

QPoint middleOf(const QQuickItem *item)
{
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

/// Scrolls the views around an item if they hide its centre.
void scrollIntoView(const QQuickItem *item)
{
    for (QQuickItem *around = item->parentItem(); around; around = around->parentItem()) {
        const bool isHead = around->property("scrolled").isValid(); // of a table: scrolled with its rows
        QQuickItem *view = isHead ? around->parentItem()->findChild<QQuickItem *>(QStringLiteral("tableRows"))
                           : around->inherits("QQuickFlickable") ? around
                                                                 : nullptr;
        const QRectF area = item->mapRectToItem(around, QRectF({}, item->size()));
        if (!view || QRectF({}, around->size()).contains(area.center()))
            continue;
        const auto scroll = [view](const char *position, qreal first, qreal last, qreal room) {
            const qreal by = first < 0 ? first : std::max(0.0, std::min(first, last - room));
            view->setProperty(position, view->property(position).toReal() + by);
        };
        scroll("contentX", area.left(), area.right(), around->width());
        if (!isHead)
            scroll("contentY", area.top(), area.bottom(), around->height());
    }
}

void blankVideo(QQuickItem *item, QPainter &painter)
{
    if (!item->isVisible())
        return;
    if (item->objectName() == u"liveVideo")
        painter.fillRect(item->mapRectToScene(item->boundingRect()), Qt::black);
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        blankVideo(child, painter);
}

/// The image of the window, with live views painted black.
QImage withoutVideo(QQuickWindow *window)
{
    QImage image = window->grabWindow();
    image.setDevicePixelRatio(window->effectiveDevicePixelRatio());
    QPainter painter(&image);
    blankVideo(window->contentItem(), painter);
    return image;
}

} // namespace

Driver::Driver(QQuickWindow *window, QString imageFolder)
    : m_window(window), m_imageFolder(std::move(imageFolder))
{
    QDir().mkpath(m_imageFolder);
}

void Driver::activate() const
{
    m_window->requestActivate();
    check(QTest::qWaitForWindowActive(m_window), QStringLiteral("the window becomes the active one"));
}

QQuickItem *Driver::find(const QString &name) const
{
    return findBelow(m_window->contentItem(), name);
}

QQuickItem *Driver::require(const QString &name) const
{
    await(QStringLiteral("\"%1\" is on the window").arg(name), [&] { return find(name) != nullptr; });
    return find(name);
}

QString Driver::text(const QString &name) const
{
    return require(name)->property("text").toString();
}

QStringList Driver::texts(const QString &name) const
{
    QList<const QQuickItem *> items;
    collectBelow(m_window->contentItem(), name, items);
    QStringList texts;
    for (const QQuickItem *item : std::as_const(items))
        texts.append(item->property("text").toString());
    return texts;
}

QQuickItem *Driver::requireForClicks(const QString &name) const
{
    scrollIntoView(require(name));
    atRest();
    QQuickItem *item = nullptr; // a list may have replaced it meanwhile
    await(
        QStringLiteral("\"%1\" takes clicks").arg(name),
        [&] {
            item = find(name);
            if (!item)
                return false;
            const bool isBlocked = find(QStringLiteral("inputBlocker"));
            const QQuickItem *sheet = find(QStringLiteral("panelBlocker"));
            const bool isUnderSheet = sheet && sheet->contains(sheet->mapFromScene(QPointF(middleOf(item))));
            return !isBlocked && !isUnderSheet && !isUnderNotice(middleOf(item));
        },
        30);
    return item;
}

void Driver::click(const QString &name, Qt::KeyboardModifiers modifiers) const
{
    QTest::mouseClick(m_window, Qt::LeftButton, modifiers, middleOf(requireForClicks(name)));
}

bool Driver::isUnderNotice(QPoint position) const
{
    constexpr QMargins margins(46, 14, 20, 14); // of the notice around its text
    QList<const QQuickItem *> notices;
    collectBelow(m_window->contentItem(), QStringLiteral("toastText"), notices);
    if (std::ranges::none_of(notices, [&](const QQuickItem *text) {
            return text->mapRectToScene(text->boundingRect()).marginsAdded(margins).contains(position);
        }))
        return false;
    QTest::mouseMove(m_window, QPoint(1, 1)); // a notice stays open while the pointer is over it
    return true;
}

void Driver::hover(const QString &name) const
{
    QQuickItem *item = require(name);
    scrollIntoView(item);
    atRest();
    QTest::mouseMove(m_window, middleOf(item) + QPoint(1, 1));
    QTest::mouseMove(m_window, middleOf(item));
}

void Driver::doubleClick(const QString &name) const
{
    QTest::mouseDClick(m_window, Qt::LeftButton, Qt::NoModifier, middleOf(requireForClicks(name)));
}

void Driver::rightClick(const QString &name) const
{
    QTest::mouseClick(m_window, Qt::RightButton, Qt::NoModifier, middleOf(require(name)));
}

void Driver::turnWheel(QPointF position, int notches) const
{
    constexpr int notch = 120;
    QWheelEvent event(position, m_window->mapToGlobal(position), {}, {0, notch * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_window, &event);
}

void Driver::acceptFileBox(const QString &path) const
{
    QFileDialog *box = nullptr;
    await(QStringLiteral("the box for files opens"), [&] {
        box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        return box && box->isVisible();
    });
    auto *field = box->findChild<QLineEdit *>();
    check(field != nullptr, QStringLiteral("the box has a field for a path"));
    field->setFocus();
    field->setText(path);
    QTest::keyClick(field, Qt::Key_Return);
    await(QStringLiteral("the box for files is closed"),
          [] { return QApplication::activeModalWidget() == nullptr; });
}

void Driver::key(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_window, key, modifiers);
}

void Driver::type(const QString &text) const
{
    for (const QChar letter : text) {
        if (letter.unicode() < 128) {
            QTest::keyClick(m_window, letter.toLatin1());
            continue;
        }
        QInputMethodEvent event;
        event.setCommitString(letter);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &event);
    }
}

void Driver::fill(const QString &name, const QString &text) const
{
    // Near the upper edge, because an error message may cover the lower part.
    constexpr int intoField = 8;
    QQuickItem *field = require(name);
    scrollIntoView(field);
    atRest();
    const QPoint position = field->mapToScene(QPointF(field->width() / 2, intoField)).toPoint();
    // Input may still be blocked after the previous step.
    await(QStringLiteral("\"%1\" has the keyboard").arg(name), [&] {
        QTest::mouseClick(m_window, Qt::LeftButton, Qt::NoModifier, position);
        const QQuickItem *clicked = find(name); // an editor may replace the item
        return clicked && clicked->hasActiveFocus();
    });
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    type(text);
}

void Driver::await(const QString &what, const std::function<bool()> &condition, int seconds) const
{
    check(QTest::qWaitFor(condition, seconds * 1000), what);
}

void Driver::awaitGone(const QString &name) const
{
    await(QStringLiteral("\"%1\" is closed").arg(name), [&] { return !find(name); });
}

void Driver::check(bool condition, const QString &what) const
{
    if (condition)
        return;
    QTextStream(stdout) << "FAILED: " << what << Qt::endl;
    if (m_window)
        m_window->grabWindow().save(m_imageFolder + QStringLiteral("/failed.png"));
    std::_Exit(EXIT_FAILURE); // QML is inside a call and must not continue
}

void Driver::report(const QString &step, const QString &seen)
{
    const QString name = QStringLiteral("%1-%2").arg(++m_images, 2, 10, QLatin1Char('0')).arg(step);
    save(name);
    QTextStream(stdout) << name << ".png: " << seen << Qt::endl;
}

void Driver::save(const QString &name) const
{
    atRest();
    checkNames(m_window->contentItem());
    const QString file = name + QStringLiteral(".png");
    // Grabbing the window updates the layout of items that have changed since the last frame.
    const QImage image = m_window->grabWindow();
    // A warning fails the tour at its end, so that the other images are still checked.
    const QStringList faults = layoutFaults(*m_window);
    for (const QString &fault : faults)
        qWarning().noquote() << "Layout of" << file + ':' << fault;
    check(!image.isNull() && image.save(m_imageFolder + QLatin1Char('/') + file),
          QStringLiteral("the image %1 is saved").arg(file));
}

void Driver::checkNames(QQuickItem *item) const
{
    if (!item->isVisible())
        return;
    if (item->activeFocusOnTab() && item->isEnabled()) {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
        check(spoken && !spoken->text(QAccessible::Name).isEmpty(),
              QStringLiteral("what the keyboard reaches has a name for screen readers: %1 \"%2\" in \"%3\"")
                  .arg(QString::fromLatin1(item->metaObject()->className()), item->objectName(),
                       item->parentItem() ? item->parentItem()->objectName() : QString()));
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        checkNames(child);
}

void Driver::atRest() const
{
    // Animations have ended when three successive images are equal except for live video: on a busy machine,
    // the first two can be equal because an animation has not begun. The wait is limited, because a running
    // search never comes to rest.
    constexpr int tries = 12;
    constexpr int enough = 2;
    int equal = 0;
    QImage before;
    for (int attempt = 0; attempt < tries; ++attempt) {
        const QImage now = withoutVideo(m_window);
        equal = now == before ? equal + 1 : 0;
        if (equal == enough)
            return;
        before = now;
        QTest::qWait(60);
    }
}
