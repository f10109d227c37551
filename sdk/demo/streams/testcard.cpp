#include "sdk/demo/streams/testcard.h"

#include "sdk/demo/streams/bitmaptext.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

constexpr int clockCharacters = 22; // "2024-01-01 00:00:00.00"
constexpr qsizetype longestText = 200;
const QColor paper(16, 16, 16);

constexpr int evenFloor(int number)
{
    return number / 2 * 2;
}

void drawBars(QPainter &painter, const QRect &area, const QList<QColor> &colours)
{
    const auto count = static_cast<int>(colours.size());
    for (int index = 0; index < count; ++index) {
        const int left = area.left() + area.width() * index / count;
        const int right = area.left() + area.width() * (index + 1) / count;
        painter.fillRect(left, area.top(), right - left, area.height(), colours.at(index));
    }
}

/// Whether strings can be drawn with fonts. Fonts may be used on any thread while the application object
/// exists.
bool hasFonts()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

} // namespace

TestCard::TestCard(QSize size, int hue, const TestCardLabels &labels)
    : m_still(size, QImage::Format_RGB32), m_tint(QColor::fromHsv(hue, 150, 105)),
      m_lightTint(QColor::fromHsv(hue, 70, 190)), m_line(std::max(1, size.height() / 540)),
      m_dot(
          std::max(1, std::min(size.width() / 2 / (clockCharacters * bitmapGlyphWidth), size.height() / 100)))
{
    drawStill(labels);
}

QList<TestCard::Region> TestCard::moving(std::int64_t time) const
{
    return {hand(time), slider(time), clock(time)};
}

void TestCard::drawStill(const TestCardLabels &labels)
{
    m_still.fill(m_tint);
    QPainter painter(&m_still);
    drawFrame(painter);
    drawColours(painter);
    drawFineLines(painter);
    drawStar(painter);
    drawScale(painter);
    drawLabels(painter, labels);
}

/// The grid, the ring and the edge: they show whether the image is complete and has the right proportions.
void TestCard::drawFrame(QPainter &painter) const
{
    constexpr int cellsOfHeight = 12;
    const int width = m_still.width();
    const int height = m_still.height();
    const double cell = static_cast<double>(height) / cellsOfHeight;
    for (int index = 1; index < cellsOfHeight; ++index)
        painter.fillRect(0, qRound(index * cell), width, m_line, m_lightTint);
    for (double x = std::fmod(width / 2.0, cell); x < width; x += cell)
        painter.fillRect(qRound(x), 0, m_line, height, m_lightTint);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, m_line * 2));
    painter.drawEllipse(QPointF(width / 2.0, height / 2.0), height * 0.44, height * 0.44);
    painter.setRenderHint(QPainter::Antialiasing, false);

    const int edge = std::max(2, height / 45);
    for (int index = 0; index * edge * 2 < std::max(width, height); ++index) {
        const QColor colour = index % 2 == 0 ? Qt::white : Qt::black;
        const int start = index * edge * 2;
        painter.fillRect(start, 0, edge * 2, edge, colour);
        painter.fillRect(start, height - edge, edge * 2, edge, colour);
        painter.fillRect(0, start, edge, edge * 2, colour);
        painter.fillRect(width - edge, start, edge, edge * 2, colour);
    }
}

void TestCard::drawColours(QPainter &painter) const
{
    constexpr int full = 191; // three quarters
    const QRect bars = part(150, 90, 700, 160);
    drawBars(painter, bars,
             {QColor(full, full, full), QColor(full, full, 0), QColor(0, full, full), QColor(0, full, 0),
              QColor(full, 0, full), QColor(full, 0, 0), QColor(0, 0, full), QColor(0, 0, 0)});
    constexpr int steps = 11;
    QList<QColor> greys;
    for (int step = 0; step < steps; ++step) {
        const int value = 255 * step / (steps - 1);
        greys.append(QColor(value, value, value));
    }
    QRect stairs = part(150, 250, 700, 70);
    stairs.moveTop(bars.bottom() + 1);
    drawBars(painter, stairs, greys);
}

/// Gratings of lines of one to four pixels, vertical above and horizontal below.
void TestCard::drawFineLines(QPainter &painter) const
{
    const QRect area = part(710, 380, 200, 240);
    constexpr int widths = 4;
    const int side = area.width() / widths;
    const int height = area.height() / 2;
    painter.fillRect(area, Qt::black);
    for (int width = 1; width <= widths; ++width) {
        const QRect upper(area.left() + side * (width - 1), area.top(), side, height);
        for (int x = 0; x < side; x += width * 2)
            painter.fillRect(QRect(upper.left() + x, upper.top(), width, height) & upper, Qt::white);
        const QRect lower = upper.translated(0, height);
        for (int y = 0; y < height; y += width * 2)
            painter.fillRect(QRect(lower.left(), lower.top() + y, side, width) & lower, Qt::white);
    }
}

/// Rays that meet in a point. The radius at which they blur shows the sharpness of the image.
void TestCard::drawStar(QPainter &painter) const
{
    constexpr int rays = 36;
    constexpr int turn = 360 * 16; // the unit of QPainter
    const QRect area = part(90, 380, 200, 240);
    const int side = std::min(area.width(), area.height());
    QRect star(0, 0, side, side);
    star.moveCenter(area.center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(star);
    painter.setBrush(Qt::white);
    for (int ray = 0; ray < rays; ++ray)
        painter.drawPie(star, turn * ray / rays, turn / rays / 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// A ruler of a hundred parts below the track of the slider.
void TestCard::drawScale(QPainter &painter) const
{
    const QRect area = track();
    const int gap = std::max(1, m_line);
    painter.fillRect(area, paper);
    painter.setBrush(Qt::white);
    constexpr int parts = 100;
    for (int index = 0; index <= parts; ++index) {
        const int length = index % 10 == 0 ? area.height() : area.height() / (index % 5 == 0 ? 2 : 4);
        const int x = area.left() + (area.width() - m_line) * index / parts;
        painter.fillRect(x, area.bottom() + gap, m_line, length, Qt::white);
    }
}

/// The details above the clock, the name below it.
void TestCard::drawLabels(QPainter &painter, const TestCardLabels &labels) const
{
    const int gap = m_dot * 2;
    const QRect middle = clockArea();
    const int width = std::min(bitmapWidth(labels.details), m_still.width());
    QRect details(0, 0, width, middle.height());
    details.moveCenter({m_still.width() / 2, 0});
    details.moveBottom(middle.top() - gap);
    drawStrip(painter, details, labels.details);

    QRect name(0, middle.bottom() + gap, m_still.width(), middle.height());
    if (hasFonts()) {
        QFont font;
        font.setPixelSize(name.height() * 3 / 4);
        painter.setFont(font);
        painter.setPen(Qt::white);
        const int length = painter.fontMetrics().horizontalAdvance(labels.name) + 2 * gap;
        name.setWidth(std::min(length, m_still.width()));
        name.moveCenter({m_still.width() / 2, name.center().y()});
        painter.fillRect(name, paper);
        painter.drawText(name, Qt::AlignCenter | Qt::TextSingleLine, labels.name);
        return;
    }
    name.setWidth(std::min(bitmapWidth(labels.name), m_still.width()));
    name.moveCenter({m_still.width() / 2, name.center().y()});
    drawStrip(painter, name, labels.name);
}

/// With a margin of a dot on both sides; a character ends with a gap of one dot.
int TestCard::bitmapWidth(const QString &text) const
{
    return (static_cast<int>(std::min<qsizetype>(text.size(), longestText)) * bitmapGlyphWidth + 1) * m_dot;
}

void TestCard::drawStrip(QPainter &painter, const QRect &area, const QString &text) const
{
    painter.fillRect(area, paper);
    painter.setBrush(Qt::white);
    const int top = (area.height() - bitmapGlyphHeight * m_dot) / 2;
    drawBitmapText(painter, area.topLeft() + QPoint(m_dot, top), m_dot, text.left(longestText));
}

/// A hand with a fan, one turn in four seconds.
TestCard::Region TestCard::hand(std::int64_t time) const
{
    constexpr int turnTime = 4000;
    constexpr int turn = 360 * 16;
    constexpr int fan = 40 * 16;
    const QRect area = dial();
    Region region = {area.topLeft(), m_still.copy(area)};
    QPainter painter(&region.image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(QPointF(0, 0), area.size()).adjusted(m_line, m_line, -m_line, -m_line);
    painter.setPen(QPen(Qt::white, m_line));
    painter.setBrush(paper);
    painter.drawEllipse(face);
    const int angle =
        turn / 4 - static_cast<int>(time % turnTime) * turn / turnTime; // from the top, clockwise
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_lightTint);
    painter.drawPie(face, angle, fan);
    painter.setPen(QPen(Qt::white, m_line * 2));
    const double radians = angle * 2 * std::numbers::pi / turn;
    painter.drawLine(face.center(),
                     face.center() + QPointF(std::cos(radians), -std::sin(radians)) * face.width() / 2);
    return region;
}

/// A ball that moves along the ruler and back in eight seconds.
TestCard::Region TestCard::slider(std::int64_t time) const
{
    constexpr int wayTime = 4000;
    constexpr std::int64_t bothWays = 8000;
    const QRect area = track();
    Region region = {area.topLeft(), QImage(area.size(), QImage::Format_RGB32)};
    region.image.fill(paper);
    const auto passed = static_cast<int>(time % bothWays);
    const double way = static_cast<double>(passed < wayTime ? passed : 2 * wayTime - passed) / wayTime;
    const double radius = area.height() / 2.0;
    QPainter painter(&region.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_lightTint);
    painter.drawEllipse(QPointF(radius + way * (area.width() - 2 * radius), radius), radius, radius);
    return region;
}

TestCard::Region TestCard::clock(std::int64_t time) const
{
    constexpr int hundredth = 10; // ms
    const QRect area = clockArea();
    Region region = {area.topLeft(), QImage(area.size(), QImage::Format_RGB32)};
    const QDateTime shown = QDateTime::fromMSecsSinceEpoch(time, Qt::UTC);
    const QString text = shown.toString(u"yyyy-MM-dd hh:mm:ss"_s) +
                         u".%1"_s.arg(shown.time().msec() / hundredth, 2, 10, QLatin1Char('0'));
    QPainter painter(&region.image);
    drawStrip(painter, region.image.rect(), text);
    return region;
}

QRect TestCard::part(int x, int y, int width, int height) const
{
    constexpr int thousand = 1000;
    const auto share = [](int side, int thousandths) {
        return evenFloor(side * thousandths / thousand);
    };
    return {share(m_still.width(), x), share(m_still.height(), y), std::max(2, share(m_still.width(), width)),
            std::max(2, share(m_still.height(), height))};
}

QRect TestCard::dial() const
{
    const int side = evenFloor(std::min(m_still.height() * 27 / 100, m_still.width()));
    return {evenFloor((m_still.width() - side) / 2), evenFloor((m_still.height() - side) / 2), side, side};
}

QRect TestCard::track() const
{
    return part(150, 655, 700, 40);
}

QRect TestCard::clockArea() const
{
    const int width = std::min(evenFloor((clockCharacters * bitmapGlyphWidth + 2) * m_dot), m_still.width());
    const int height = evenFloor((bitmapGlyphHeight + 3) * m_dot);
    return {evenFloor((m_still.width() - width) / 2), part(0, 820, 0, 0).top(), width, height};
}

} // namespace sdk::demo
