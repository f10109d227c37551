#include "windowgeometry.h"

#include <QGuiApplication>
#include <QQmlProperty>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <optional>

namespace {

using namespace std::chrono_literals;

constexpr int titleBarHeight = 48;
constexpr int holdWidth = 160; ///< of the title bar, without its buttons: minimum to drag the window

struct StoredGeometry
{
    QRect normal;
    bool isMaximised = false;
};

std::optional<StoredGeometry> readGeometry(const QString &text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("(-?\\d{1,5}) (-?\\d{1,5}) (\\d{1,5}) (\\d{1,5})( maximised)?")));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const auto number = [&match](int group) {
        return match.captured(group).toInt();
    };
    return StoredGeometry{.normal = QRect(number(1), number(2), number(3), number(4)),
                          .isMaximised = !match.captured(5).isEmpty()};
}

/// Area of the part of `inner` that is inside `outer`, in square pixels.
int areaWithin(const QRect &inner, const QRect &outer)
{
    const QRect common = inner.intersected(outer);
    return common.isEmpty() ? 0 : common.width() * common.height();
}

int distanceBetween(const QRect &rect, const QRect &screen)
{
    return (rect.center() - screen.center()).manhattanLength();
}

} // namespace

WindowGeometry::WindowGeometry(QObject *parent) : QObject(parent)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(250ms);
    connect(&m_settling, &QTimer::timeout, this, &WindowGeometry::note);
}

QRect WindowGeometry::fitted(QRect wanted, QSize least, const QList<QRect> &screens)
{
    if (screens.isEmpty())
        return wanted;
    const QRect &screen =
        *std::max_element(screens.cbegin(), screens.cend(), [&](const QRect &left, const QRect &right) {
            const int leftArea = areaWithin(wanted, left);
            const int rightArea = areaWithin(wanted, right);
            return leftArea != rightArea ? leftArea < rightArea
                                         : distanceBetween(wanted, left) > distanceBetween(wanted, right);
        });
    wanted.setSize(wanted.size().expandedTo(least).boundedTo(screen.size()));
    const QRect titleBar(wanted.topLeft(), QSize(wanted.width(), titleBarHeight));
    const bool isInReach = std::any_of(screens.cbegin(), screens.cend(), [&](const QRect &other) {
        const QRect seen = titleBar.intersected(other);
        return seen.height() == titleBar.height() && seen.width() >= holdWidth;
    });
    if (isInReach)
        return wanted;
    wanted.moveLeft(std::clamp(wanted.left(), screen.left(), screen.right() - wanted.width() + 1));
    wanted.moveTop(std::clamp(wanted.top(), screen.top(), screen.bottom() - wanted.height() + 1));
    return wanted;
}

void WindowGeometry::componentComplete()
{
    const auto settle = qOverload<>(&QTimer::start);
    connect(m_window, &QWindow::xChanged, &m_settling, settle);
    connect(m_window, &QWindow::yChanged, &m_settling, settle);
    connect(m_window, &QWindow::widthChanged, &m_settling, settle);
    connect(m_window, &QWindow::heightChanged, &m_settling, settle);
    connect(m_window, &QWindow::visibilityChanged, &m_settling, settle);

    const std::optional<StoredGeometry> stored = readGeometry(m_stored);
    if (!stored)
        return;
    QList<QRect> screens;
    const QList<QScreen *> known = QGuiApplication::screens();
    for (const QScreen *screen : known)
        screens.append(screen->availableGeometry());
    m_normal = fitted(stored->normal, m_window->minimumSize(), screens);
    m_isMaximised = stored->isMaximised;
    // Written as properties: bindings of the window would override setGeometry().
    QQmlProperty::write(m_window, QStringLiteral("x"), m_normal.x());
    QQmlProperty::write(m_window, QStringLiteral("y"), m_normal.y());
    QQmlProperty::write(m_window, QStringLiteral("width"), m_normal.width());
    QQmlProperty::write(m_window, QStringLiteral("height"), m_normal.height());
    if (m_isMaximised)
        QQmlProperty::write(m_window, QStringLiteral("visibility"), QWindow::Maximized);
}

void WindowGeometry::note()
{
    switch (m_window->visibility()) {
    case QWindow::Windowed:
        if (m_window->windowStates() & Qt::WindowMaximized)
            break; // it is about to be maximised
        m_normal = m_window->geometry();
        m_isMaximised = false;
        break;
    case QWindow::Maximized:
    case QWindow::FullScreen:
        m_isMaximised = true;
        break;
    default:
        break; // minimised or hidden: keeps the last values
    }
}

QString WindowGeometry::text()
{
    note();
    if (m_normal.isEmpty())
        return {};
    const QString text = QStringLiteral("%1 %2 %3 %4")
                             .arg(m_normal.x())
                             .arg(m_normal.y())
                             .arg(m_normal.width())
                             .arg(m_normal.height());
    return m_isMaximised ? text + QStringLiteral(" maximised") : text;
}
