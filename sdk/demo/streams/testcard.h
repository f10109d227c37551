// The moving test image of a simulated channel.
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

#include <cstdint>

namespace sdk::demo {

/// The labels of a test card.
struct TestCardLabels
{
    QString name;    ///< of the device, in any script; drawn by drawBitmapText() if the program has no fonts
    QString details; ///< drawn by drawBitmapText(), so only with characters of its font
};

/// An image with colours, lines and labels, and a moving hand, slider and clock. The static part is drawn
/// once, by the constructor. The moving regions are drawn for each frame. Used by one thread at a time, which
/// need not be that of the window.
class TestCard
{
public:
    /// `size` is in pixels; both sides are even. `hue` is the tint of the card, in degrees, 0 to 359.
    TestCard(QSize size, int hue, const TestCardLabels &labels);

    /// A rectangular region of the card. The coordinates of its corner and its sides are even.
    struct Region
    {
        QPoint corner; ///< the upper left one, in pixels of the card
        QImage image;  ///< QImage::Format_RGB32
    };

    /// The complete card without its moving parts.
    [[nodiscard]] Region still() const { return {{0, 0}, m_still}; }

    /// The moving regions at `time` (ms since 1970) of the device's clock. They are the same rectangles for
    /// every time, so painting them over the card replaces those of an earlier time.
    [[nodiscard]] QList<Region> moving(std::int64_t time) const;

private:
    void drawStill(const TestCardLabels &labels);
    void drawFrame(QPainter &painter) const;
    void drawColours(QPainter &painter) const;
    void drawFineLines(QPainter &painter) const;
    void drawStar(QPainter &painter) const;
    void drawScale(QPainter &painter) const;
    void drawLabels(QPainter &painter, const TestCardLabels &labels) const;
    void drawStrip(QPainter &painter, const QRect &area, const QString &text) const;
    [[nodiscard]] int bitmapWidth(const QString &text) const;
    [[nodiscard]] Region hand(std::int64_t time) const;
    [[nodiscard]] Region slider(std::int64_t time) const;
    [[nodiscard]] Region clock(std::int64_t time) const;

    /// A rectangle by thousandths of the card's sides, with even corners and sides.
    [[nodiscard]] QRect part(int x, int y, int width, int height) const;
    [[nodiscard]] QRect dial() const;
    [[nodiscard]] QRect track() const;
    [[nodiscard]] QRect clockArea() const;

    QImage m_still;
    QColor m_tint;
    QColor m_lightTint;
    int m_line; // width of a plain line
    int m_dot;  // size of a dot of the clock's characters
};

} // namespace sdk::demo
