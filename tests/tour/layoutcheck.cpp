#include "tests/tour/layoutcheck.h"

#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal farAway = 1e6;
constexpr qreal hair = 1.5; ///< pixels that rounding may take

/// What is right although the rules object to it.
struct Exemption
{
    QLatin1StringView name; ///< of the item or of one that it lies in
    QLatin1StringView reason;
};
constexpr std::array<Exemption, 0> exemptions{};

/// A text or a control that can be seen.
struct Piece
{
    const QQuickItem *item;
    QRectF place; ///< in the window, as far as it can be seen
    int layer;    ///< 0 for the page, then one for each popup
    bool isControl;
    bool isTip;
};

QString className(const QQuickItem *item)
{
    return QString::fromLatin1(item->metaObject()->className()).section(u"_QML"_s, 0, 0);
}

/// The item with its text, and the nearest items around it that have names.
QString described(const QQuickItem *item)
{
    QString words = className(item);
    const QString text = item->property("text").toString();
    if (!text.isEmpty())
        words += u" \"%1\""_s.arg(text.left(60));
    int names = 0;
    for (const QQuickItem *around = item; around && names < 2; around = around->parentItem()) {
        if (around->objectName().isEmpty())
            continue;
        words += (around == item ? u" named %1"_s : u" in %1"_s).arg(around->objectName());
        ++names;
    }
    return words;
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

/// Where the signs of a text are, without the room above and below them.
QRectF placeOfSigns(const QQuickItem *text)
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

/// `own` tool tips of the item are switched off.
bool hasToolTipWith(const QQuickItem *item, const QString &words, int own)
{
    // A tip keeps the lines of its text; what is very long is cut in both.
    constexpr qsizetype compared = 100;
    const QString text = words.simplified().left(compared);
    if (item->property("toolTip").toString().simplified().contains(text))
        return true;
    const QList<QQuickItem *> children = item->childItems();
    return std::ranges::count_if(children, [&](const QQuickItem *child) {
               // Some tips make their text only when they are shown.
               const QString shown = child->property("text").toString().simplified();
               return className(child) == u"OVToolTip" && (shown.isEmpty() || shown.contains(text));
           }) > own;
}

bool isShownWhole(const QQuickItem *text)
{
    const QString words = text->property("text").toString();
    constexpr int reach = 4; // items around the text
    const QQuickItem *around = text->parentItem();
    for (int step = 0; step < reach && around; ++step, around = around->parentItem()) {
        const QVariant own = around->property("showsWholeOnHover");
        if (own.toBool() || hasToolTipWith(around, words, own.isValid() ? 1 : 0))
            return true;
    }
    return false;
}

/// Whether a view has made this row in advance, or keeps it for later: it is not drawn.
bool isRowInReserve(QQuickItem *item)
{
    const QQuickItem *content = item->parentItem();
    QQuickItem *view = content ? content->parentItem() : nullptr;
    if (!view || !view->inherits("QQuickItemView") || !item->property("index").isValid())
        return false;
    constexpr qreal inside = 0.5;
    QQuickItem *shown = nullptr;
    // The name of the type is written as the toolkit has it.
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
    /// What the items around an item leave of it.
    struct Frame
    {
        QRectF shown;  ///< outside nothing is seen
        QRectF bounds; ///< outside nothing may be, since it cannot be scrolled into view
        int layer = 0;
        bool isTip = false;
    };

    void look(QQuickItem *item, Frame frame)
    {
        constexpr qreal unseen = 0.01;
        if (!item->isVisible() || item->opacity() < unseen || isRowInReserve(item))
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
        const QRectF place = item->mapRectToScene(QRectF({}, item->size()));
        frame.shown &= place;
        const bool scrolls = item->inherits("QQuickFlickable");
        QRectF bounds = frame.bounds & place;
        if (scrolls && item->property("contentWidth").toReal() > item->width() + hair) {
            bounds.setLeft(-farAway);
            bounds.setRight(farAway);
        }
        if (scrolls && item->property("contentHeight").toReal() > item->height() + hair) {
            bounds.setTop(-farAway);
            bounds.setBottom(farAway);
        }
        frame.bounds = bounds;
    }

    void takeText(const QQuickItem *item, const Frame &frame)
    {
        if (item->property("text").toString().trimmed().isEmpty())
            return;
        const QRectF place = placeOfSigns(item);
        take(item, place, frame, false);
        if (item->property("truncated").toBool() && place.intersects(frame.shown) && !isShownWhole(item))
            object(item, u"is elided, and no tool tip shows the whole"_s);
    }

    void takeControl(const QQuickItem *item, const Frame &frame)
    {
        take(item, item->mapRectToScene(QRectF({}, item->size())), frame, true);
    }

    void take(const QQuickItem *item, const QRectF &place, const Frame &frame, bool isControl)
    {
        if (place.isEmpty())
            return;
        const QRectF allowed = frame.bounds.adjusted(-hair, -hair, hair, hair);
        if (!allowed.contains(place))
            object(item, u"is cut: it takes %1, and there is room in %2"_s.arg(written(place),
                                                                               written(frame.bounds)));
        const QRectF seen = place & frame.shown;
        if (!seen.isEmpty())
            m_pieces.append({item, seen, frame.layer, isControl, frame.isTip});
    }

    void compare()
    {
        for (qsizetype one = 0; one < m_pieces.size(); ++one) {
            for (qsizetype other = one + 1; other < m_pieces.size(); ++other)
                compare(m_pieces.at(one), m_pieces.at(other));
        }
    }

    void compare(const Piece &one, const Piece &other)
    {
        const QRectF common = one.place & other.place;
        if (common.width() <= hair || common.height() <= hair)
            return;
        if (one.layer == other.layer) {
            if (!one.item->isAncestorOf(other.item) && !other.item->isAncestorOf(one.item))
                object(one.item, u"lies over %1, both in %2"_s.arg(described(other.item), written(common)));
            return;
        }
        const bool covers = (one.isTip && other.item->objectName().startsWith(u"head_")) ||
                            (other.isTip && one.item->objectName().startsWith(u"head_"));
        if (covers)
            object(one.item,
                   u"and %1: a tool tip covers the heading of a table"_s.arg(described(other.item)));
    }

    static QString written(const QRectF &place)
    {
        return u"%1, %2, %3 x %4"_s.arg(place.x(), 0, 'f', 1)
            .arg(place.y(), 0, 'f', 1)
            .arg(place.width(), 0, 'f', 1)
            .arg(place.height(), 0, 'f', 1);
    }

    void object(const QQuickItem *item, const QString &fault)
    {
        if (!isExempt(item))
            m_faults.append(described(item) + u' ' + fault);
    }

    QList<Piece> m_pieces;
    QStringList m_faults;
    int m_layers = 0;
};

} // namespace

QStringList layoutFaults(const QQuickWindow &window)
{
    return LayoutCheck(window).faults();
}
