#include "sdk/demo/streams/cardjpeg.h"

#include <QBuffer>
#include <QPainter>

namespace sdk::demo {

QByteArray cardJpeg(const TestCard &card, std::int64_t time, int brightness)
{
    QImage image = card.still().image.copy();
    QPainter painter(&image);
    const QList<TestCard::Region> regions = card.moving(time);
    for (const TestCard::Region &region : regions)
        painter.drawImage(region.corner, region.image);
    constexpr int usual = 50; // percent
    constexpr int full = 255;
    const int veil = (brightness - usual) * full / usual;
    painter.fillRect(image.rect(),
                     veil < 0 ? QColor(0, 0, 0, -veil / 2) : QColor(full, full, full, veil / 2));
    painter.end();

    QByteArray file;
    QBuffer buffer(&file);
    constexpr int quality = 85;
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "JPG", quality))
        return {};
    return file;
}

} // namespace sdk::demo
