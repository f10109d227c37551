#include "report/internal/pagewriter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>

#include <algorithm>

namespace report {

namespace {

constexpr qreal marginSide = 50 * point;
constexpr qreal marginTop = 48 * point;
constexpr qreal marginBottom = 52 * point;
constexpr qreal cellPadding = 5 * point;
constexpr qreal markWidth = 12 * point;

const TextStyle cellStyle = {.size = 8.5, .mostLines = 6};
const TextStyle headStyle = {.size = 8, .color = Colour::sub, .weight = QFont::DemiBold, .mostLines = 1};

/// Breaks a text into lines. `line` gets each line, its text and its height.
template<typename Line>
qreal layOut(const QString &text, const TextStyle &style, qreal width, QPaintDevice *device, Line line)
{
    const QFont font = fontOf(style);
    const QFontMetricsF metrics(font, device);
    qreal height = 0;
    int count = 0;
    const QStringList paragraphs = text.split(u'\n');
    for (const QString &paragraph : paragraphs) {
        QTextLayout layout(paragraph, font, device);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (;;) {
            QTextLine part = layout.createLine();
            if (!part.isValid() || count == style.mostLines)
                break;
            part.setLineWidth(width);
            ++count;
            const int end = part.textStart() + part.textLength();
            const bool isCut = count == style.mostLines && end < paragraph.size();
            const QString shown =
                isCut ? metrics.elidedText(paragraph.mid(part.textStart()), Qt::ElideRight, width)
                      : paragraph.mid(part.textStart(), part.textLength());
            line(shown.trimmed(), height + metrics.ascent());
            height += metrics.height() * 1.12;
        }
        layout.endLayout();
    }
    return height;
}

} // namespace

QFont fontOf(const TextStyle &style)
{
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans CJK SC")});
    font.setPixelSize(qRound(style.size * point));
    font.setWeight(style.weight);
    // The Latin face has contextual brackets and colons next to capitals and digits. These glyphs have no
    // character code, so a reader could not search or copy them.
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

PageWriter::PageWriter(QPdfWriter &device, QPainter *painter, const QString &footText, int pageCount)
    : m_device(device), m_painter(painter), m_footText(footText),
      m_paper(device.pageLayout().fullRectPixels(unitsPerInch).size()), m_pageCount(pageCount), m_y(marginTop)
{
}

qreal PageWriter::left() const
{
    return marginSide;
}

qreal PageWriter::width() const
{
    return m_paper.width() - 2 * marginSide;
}

void PageWriter::need(qreal height)
{
    const qreal end = m_paper.height() - marginBottom;
    if (m_y + height > end && m_y > marginTop)
        newPage();
}

void PageWriter::newPage()
{
    drawFoot();
    if (m_painter)
        m_device.newPage();
    ++m_page;
    m_y = marginTop;
}

void PageWriter::end()
{
    drawFoot();
}

qreal PageWriter::textHeight(const QString &text, const TextStyle &style, qreal width) const
{
    return layOut(text, style, width, &m_device, [](const QString &, qreal) {});
}

qreal PageWriter::drawText(QPointF position, qreal width, const QString &text, const TextStyle &style)
{
    m_allText += text;
    if (m_painter) {
        m_painter->setFont(fontOf(style));
        m_painter->setPen(style.color);
    }
    return layOut(text, style, width, &m_device, [&](const QString &line, qreal baseline) {
        if (m_painter)
            m_painter->drawText(position + QPointF(0, baseline), line);
    });
}

void PageWriter::heading(const QString &text, qreal following)
{
    const TextStyle style = {.size = 14, .weight = QFont::DemiBold};
    const qreal height = textHeight(text, style, width());
    if (m_y > marginTop)
        space(18 * point);
    need(height + 8 * point + following);
    drawText({left(), m_y}, width(), text, style);
    space(height + 8 * point);
}

void PageWriter::drawTableHead(const QList<Column> &columns)
{
    const qreal height = 20 * point;
    if (m_painter)
        m_painter->fillRect(QRectF(left(), m_y, width(), height), Colour::quiet);
    qreal x = left();
    for (const Column &column : columns) {
        drawText({x + cellPadding, m_y + 5 * point}, column.width - 2 * cellPadding, column.title, headStyle);
        x += column.width;
    }
    space(height);
}

void PageWriter::table(const QList<Column> &columns, const QList<QStringList> &rows, bool marksRows)
{
    const auto cellWidth = [&](qsizetype column) {
        const qreal mark = marksRows && column == 0 ? markWidth : 0;
        return columns.at(column).width - 2 * cellPadding - mark;
    };
    bool needsHead = true;
    for (const QStringList &row : rows) {
        qreal height = 0;
        for (qsizetype column = 0; column < columns.size(); ++column)
            height = std::max(height, textHeight(row.value(column), cellStyle, cellWidth(column)));
        height += 2 * cellPadding;
        const int page = m_page;
        need(height + (needsHead ? 20 * point : 0));
        if (needsHead || page != m_page)
            drawTableHead(columns);
        needsHead = false;
        qreal x = left();
        for (qsizetype column = 0; column < columns.size(); ++column) {
            const bool hasMark = marksRows && column == 0;
            if (hasMark && m_painter) {
                m_painter->setPen(Qt::NoPen);
                m_painter->setBrush(Colour::warn);
                m_painter->setRenderHint(QPainter::Antialiasing);
                m_painter->drawEllipse(QPointF(x + cellPadding + 3 * point, m_y + cellPadding + 5.5 * point),
                                       3 * point, 3 * point);
            }
            drawText({x + cellPadding + (hasMark ? markWidth : 0), m_y + cellPadding}, cellWidth(column),
                     row.value(column), cellStyle);
            x += columns.at(column).width;
        }
        space(height);
        if (m_painter) {
            m_painter->setPen(QPen(Colour::line, 0.6 * point));
            m_painter->drawLine(QPointF(left(), m_y), QPointF(left() + width(), m_y));
        }
    }
}

void PageWriter::drawFoot()
{
    if (!m_painter)
        return;
    const qreal top = m_paper.height() - marginBottom + 16 * point;
    m_painter->setPen(QPen(Colour::line, 0.6 * point));
    m_painter->drawLine(QPointF(left(), top), QPointF(left() + width(), top));
    const TextStyle style = {.size = 8, .color = Colour::faint, .mostLines = 1};
    drawText({left(), top + 6 * point}, width() - 80 * point, m_footText, style);
    const QString number = QStringLiteral("%1 / %2").arg(m_page).arg(m_pageCount);
    const qreal textWidth = QFontMetricsF(fontOf(style), &m_device).horizontalAdvance(number);
    drawText({left() + width() - textWidth, top + 6 * point}, textWidth + point, number, style);
}

} // namespace report
