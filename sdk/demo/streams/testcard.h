// The moving test picture of a simulated channel.
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

#include <cstdint>

namespace sdk::demo {

/// What stands on a test card.
struct TestCardTexts
{
    QString name;    ///< of the device, in any letters; drawn as dots while the program has no fonts
    QString details; ///< letters of ASCII
};

/// Belongs to one thread, which may be any. What stands still is drawn once; what moves is drawn for each
/// picture, over pieces of it.
class TestCard
{
public:
    /// `hue` is the tint of the card, 0 to 359. Both sides of `size` are even.
    TestCard(QSize size, int hue, const TestCardTexts &texts);

    /// A piece of the card with even corners and sides.
    struct Piece
    {
        QPoint corner;
        QImage picture; ///< QImage::Format_RGB32
    };

    /// The whole card as it stands still.
    [[nodiscard]] Piece still() const { return {{0, 0}, m_still}; }

    /// The pieces that move as they look at `time` (ms since 1970) of the device's own clock.
    [[nodiscard]] QList<Piece> moving(std::int64_t time) const;

private:
    void drawStill(const TestCardTexts &texts);
    void drawFrame(QPainter &painter) const;
    void drawColours(QPainter &painter) const;
    void drawFineLines(QPainter &painter) const;
    void drawStar(QPainter &painter) const;
    void drawScale(QPainter &painter) const;
    void drawTexts(QPainter &painter, const TestCardTexts &texts) const;
    void drawStrip(QPainter &painter, const QRect &area, const QString &text) const;
    [[nodiscard]] int bitmapWidth(const QString &text) const;
    [[nodiscard]] Piece hand(std::int64_t time) const;
    [[nodiscard]] Piece slider(std::int64_t time) const;
    [[nodiscard]] Piece clock(std::int64_t time) const;

    /// A rectangle by thousandths of the card's sides, with even corners and sides.
    [[nodiscard]] QRect part(int x, int y, int width, int height) const;
    [[nodiscard]] QRect dial() const;
    [[nodiscard]] QRect track() const;
    [[nodiscard]] QRect clockArea() const;

    QImage m_still;
    QColor m_tint;
    QColor m_lightTint;
    int m_line; // width of a plain line
    int m_dot;  // size of a dot of the clock's letters
};

} // namespace sdk::demo
