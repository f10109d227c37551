#include "tests/tour/driver/layoutcheck.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal farAway = 1e6;
constexpr qreal tolerance = 1.5; ///< pixels, for rounding

/// Items that are correct despite a reported fault.
struct Exemption
{
    QLatin1StringView name; ///< of the item or of one that contains it
    QLatin1StringView reason;
};
constexpr std::array<Exemption, 0> exemptions{};

/// A visible text or control.
struct VisibleItem
{
    const QQuickItem *item;
    QRectF area; ///< the visible part, in window coordinates
    int layer;   ///< 0: the page; each popup has its own
    bool isControl;
    bool isTip;
};

QString className(const QQuickItem *item)
{
    return QString::fromLatin1(item->metaObject()->className()).section(u"_QML"_s, 0, 0);
}

/// The item with its text, and the nearest enclosing items with names.
QString described(const QQuickItem *item)
{
    QString description = className(item);
    const QString text = item->property("text").toString();
    if (!text.isEmpty())
        description += u" \"%1\""_s.arg(text.left(60));
    int names = 0;
    for (const QQuickItem *around = item; around && names < 2; around = around->parentItem()) {
        if (around->objectName().isEmpty())
            continue;
        description += (around == item ? u" named %1"_s : u" in %1"_s).arg(around->objectName());
        ++names;
    }
    return description;
}

bool isExempt(const QQuickItem *item)
{
    return std::ranges::any_of(exemptions, [item](const Exemption &exemption) {
        for (const QQuickItem *around = item; around; around = around->parentItem()) {
            if (around->objectName() == exemption.name)
                return true;
        }
        return false;
    });
}

bool isControl(const QQuickItem *item)
{
    return item->inherits("QQuickAbstractButton") || item->inherits("QQuickComboBox") ||
           item->inherits("QQuickSlider") || item->inherits("QQuickTextField");
}

/// The area of the characters of a text, without the space above and below them.
QRectF areaOfCharacters(const QQuickItem *text)
{
    const QSizeF size(text->property("contentWidth").toReal(), text->property("contentHeight").toReal());
    const int horizontal = text->property("effectiveHorizontalAlignment").toInt();
    const int vertical = text->property("verticalAlignment").toInt();
    const QSizeF spare = text->size() - size;
    const qreal x = horizontal == Qt::AlignRight     ? spare.width()
                    : horizontal == Qt::AlignHCenter ? spare.width() / 2
                                                     : 0;
    const qreal y = vertical == Qt::AlignBottom    ? spare.height()
                    : vertical == Qt::AlignVCenter ? spare.height() / 2
                                                   : 0;
    const qreal lines = std::max(1, text->property("lineCount").toInt());
    const qreal room = size.height() / lines / 5;
    return text->mapRectToScene(QRectF(QPointF(x, y), size).adjusted(0, room, 0, -room));
}

/// `own`: the number of the item's tool tips that are disabled.
bool hasToolTipWith(const QQuickItem *item, const QString &label, int own)
{
    // A tool tip keeps line breaks. Only the start of a very long text is compared.
    constexpr qsizetype compared = 100;
    const QString text = label.simplified().left(compared);
    if (item->property("toolTip").toString().simplified().contains(text))
        return true;
    const QList<QQuickItem *> children = item->childItems();
    return std::ranges::count_if(children, [&](const QQuickItem *child) {
               // Some tool tips create their text when they are shown.
               const QString shown = child->property("text").toString().simplified();
               return className(child) == u"OVToolTip" && (shown.isEmpty() || shown.contains(text));
           }) > own;
}

bool hasCompleteToolTip(const QQuickItem *text)
{
    const QString label = text->property("text").toString();
    constexpr int reach = 4; // number of enclosing items
    const QQuickItem *around = text->parentItem();
    for (int step = 0; step < reach && around; ++step, around = around->parentItem()) {
        const QVariant own = around->property("showsFullTextOnHover");
        if (own.toBool() || hasToolTipWith(around, label, own.isValid() ? 1 : 0))
            return true;
    }
    return false;
}

/// True if a view keeps this row in its cache, so that it is not drawn.
bool isCachedRow(QQuickItem *item)
{
    const QQuickItem *content = item->parentItem();
    QQuickItem *view = content ? content->parentItem() : nullptr;
    if (!view || !view->inherits("QQuickItemView") || !item->property("index").isValid())
        return false;
    constexpr qreal inside = 0.5;
    QQuickItem *shown = nullptr;
    // The type name must be written as Qt declares it.
    // clang-format off
    QMetaObject::invokeMethod(view, "itemAt", Q_RETURN_ARG(QQuickItem*, shown),
                              Q_ARG(qreal, item->x() + inside), Q_ARG(qreal, item->y() + inside));
    // clang-format on
    return shown != item;
}

class LayoutCheck
{
public:
    explicit LayoutCheck(const QQuickWindow &window)
    {
        const QRectF whole({}, QSizeF(window.size()));
        look(window.contentItem(), {.shown = whole, .bounds = whole});
        compare();
    }

    [[nodiscard]] QStringList faults() const { return m_faults; }

private:
    /// The limits that enclosing items impose on an item.
    struct Frame
    {
        QRectF shown;  ///< items outside are not visible
        QRectF bounds; ///< items outside are a fault, because they cannot be scrolled into view
        int layer = 0;
        bool isTip = false;
    };

    void look(QQuickItem *item, Frame frame)
    {
        constexpr qreal unseen = 0.01;
        if (!item->isVisible() || item->opacity() < unseen || isCachedRow(item))
            return;
        if (item->inherits("QQuickPopupItem"))
            frame.layer = ++m_layers;
        if (item->inherits("QQuickText"))
            takeText(item, frame);
        else if (isControl(item))
            takeControl(item, frame);
        if (item->clip())
            narrow(item, frame);
        const QList<QQuickItem *> children = item->childItems();
        frame.isTip = frame.isTip || std::ranges::any_of(children, [](const QQuickItem *child) {
                          return child->inherits("QQuickColumn") && !child->childItems().isEmpty() &&
                                 child->childItems().constFirst()->objectName() == u"toolTip";
                      });
        for (QQuickItem *child : children)
            look(child, frame);
    }

    static void narrow(const QQuickItem *item, Frame &frame)
    {
        const QRectF area = item->mapRectToScene(QRectF({}, item->size()));
        frame.shown &= area;
        const bool scrolls = item->inherits("QQuickFlickable");
        const bool isHead = item->property("scrolled").isValid(); // scrolled with the rows of its table
        QRectF bounds = frame.bounds & area;
        if (isHead || (scrolls && item->property("contentWidth").toReal() > item->width() + tolerance)) {
            bounds.setLeft(-farAway);
            bounds.setRight(farAway);
        }
        if (scrolls && item->property("contentHeight").toReal() > item->height() + tolerance) {
            bounds.setTop(-farAway);
            bounds.setBottom(farAway);
        }
        frame.bounds = bounds;
    }

    void takeText(const QQuickItem *item, const Frame &frame)
    {
        if (item->property("text").toString().trimmed().isEmpty())
            return;
        const QRectF area = areaOfCharacters(item);
        take(item, area, frame, false);
        if (item->property("truncated").toBool() && area.intersects(frame.shown) && !hasCompleteToolTip(item))
            object(item, u"is elided, and no tool tip shows the complete text"_s);
    }

    void takeControl(const QQuickItem *item, const Frame &frame)
    {
        take(item, item->mapRectToScene(QRectF({}, item->size())), frame, true);
    }

    void take(const QQuickItem *item, const QRectF &area, const Frame &frame, bool isControl)
    {
        if (area.isEmpty())
            return;
        const QRectF allowed = frame.bounds.adjusted(-tolerance, -tolerance, tolerance, tolerance);
        if (!allowed.contains(area))
            object(item,
                   u"is truncated: it needs %1, available is %2"_s.arg(written(area), written(frame.bounds)));
        const QRectF seen = area & frame.shown;
        if (!seen.isEmpty())
            m_visibleItems.append({item, seen, frame.layer, isControl, frame.isTip});
    }

    void compare()
    {
        for (qsizetype one = 0; one < m_visibleItems.size(); ++one) {
            for (qsizetype other = one + 1; other < m_visibleItems.size(); ++other)
                compare(m_visibleItems.at(one), m_visibleItems.at(other));
        }
    }

    void compare(const VisibleItem &one, const VisibleItem &other)
    {
        const QRectF common = one.area & other.area;
        if (common.width() <= tolerance || common.height() <= tolerance)
            return;
        if (one.layer == other.layer) {
            if (!one.item->isAncestorOf(other.item) && !other.item->isAncestorOf(one.item))
                object(one.item, u"overlaps %1 in %2"_s.arg(described(other.item), written(common)));
            return;
        }
        const bool covers = (one.isTip && other.item->objectName().startsWith(u"head_")) ||
                            (other.isTip && one.item->objectName().startsWith(u"head_"));
        if (covers)
            object(one.item,
                   u"and %1: a tool tip covers the heading of a table"_s.arg(described(other.item)));
    }

    static QString written(const QRectF &area)
    {
        return u"%1, %2, %3 x %4"_s.arg(area.x(), 0, 'f', 1)
            .arg(area.y(), 0, 'f', 1)
            .arg(area.width(), 0, 'f', 1)
            .arg(area.height(), 0, 'f', 1);
    }

    void object(const QQuickItem *item, const QString &fault)
    {
        if (!isExempt(item))
            m_faults.append(described(item) + u' ' + fault);
    }

    QList<VisibleItem> m_visibleItems;
    QStringList m_faults;
    int m_layers = 0;
};

} // namespace

QStringList layoutFaults(const QQuickWindow &window)
{
    return LayoutCheck(window).faults();
}
