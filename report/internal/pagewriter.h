// Draws text, tables and images on the pages of a PDF file, from top to bottom.
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

class QPainter;
class QPdfWriter;

namespace report {

/// The unit of lengths is a tenth of a point.
inline constexpr int unitsPerInch = 720;
inline constexpr qreal point = unitsPerInch / 72.0;

namespace Colour {
inline const QColor bar(0x17, 0x21, 0x30);
inline const QColor ink(0x1b, 0x24, 0x30);
inline const QColor sub(0x5d, 0x6b, 0x7c);
inline const QColor faint(0x8a, 0x97, 0xa6);
inline const QColor line(0xd9, 0xdf, 0xe6);
inline const QColor quiet(0xf4, 0xf6, 0xf8);
inline const QColor accent(0x17, 0x69, 0xe0);
inline const QColor ok(0x1a, 0x8f, 0x4c);
inline const QColor warn(0xc7, 0x77, 0x00);
} // namespace Colour

/// The appearance of a text. `size` is in points.
struct TextStyle
{
    qreal size = 9;
    QColor color = Colour::ink;
    QFont::Weight weight = QFont::Normal;
    int mostLines = 100; ///< the last line is shortened if the text is longer
};

[[nodiscard]] QFont fontOf(const TextStyle &style);

/// Has two modes. Without a painter it only measures, to determine the number of pages: the same calls with a
/// painter then draw. `y` is the position below the last content of the page.
class PageWriter
{
public:
    /// `device` must have the resolution `unitsPerInch` and no page margins. `painter` must be active on
    /// `device`, without a transformation; null: only measure. Both must outlive this object. `pageCount` is
    /// shown in the foot.
    PageWriter(QPdfWriter &device, QPainter *painter, const QString &footText, int pageCount);

    [[nodiscard]] bool isMeasuring() const { return !m_painter; }
    [[nodiscard]] QPainter *painter() const { return m_painter; } ///< null when measuring
    [[nodiscard]] int pageNumber() const { return m_page; }       ///< from 1
    [[nodiscard]] qreal left() const;
    [[nodiscard]] qreal width() const;
    [[nodiscard]] qreal y() const { return m_y; }
    void moveTo(qreal y) { m_y = y; }
    void space(qreal height) { m_y += height; }

    /// Begins a new page unless `height` fits on this one or this page is empty.
    void need(qreal height);
    void newPage(); ///< draws the foot of this page and begins the next one
    /// Draws the foot of the last page.
    void end();

    /// The height of a text in this width.
    [[nodiscard]] qreal textHeight(const QString &text, const TextStyle &style, qreal width) const;
    /// Draws a text with its upper left corner at this position; returns its height. Does not move y().
    qreal drawText(QPointF position, qreal width, const QString &text, const TextStyle &style);

    /// A heading that stays on the page of the following content of at least `following` units.
    void heading(const QString &text, qreal following);

    struct Column
    {
        QString title;
        qreal width = 0;
    };
    /// Draws a table below y() and moves y() below it. The widths of the columns add up to width(). The head
    /// is repeated on each page; without rows nothing is drawn. `rows` have a text for each column, of which
    /// up to six lines are shown. If `marksRows`, each row has a dot in the colour of a warning.
    void table(const QList<Column> &columns, const QList<QStringList> &rows, bool marksRows);

    /// All texts that were drawn, also those that were shortened, in full; without the foot when measuring.
    /// For withSearchableText().
    [[nodiscard]] const QString &allText() const { return m_allText; }

private:
    void drawTableHead(const QList<Column> &columns);
    void drawFoot();

    QPdfWriter &m_device;
    QPainter *m_painter;
    QString m_footText;
    QSizeF m_paper;
    int m_pageCount;
    int m_page = 1;
    qreal m_y = 0;
    QString m_allText;
};

} // namespace report
