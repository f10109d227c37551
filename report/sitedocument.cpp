#include "report/sitedocument.h"

#include "documents/searchabletext.h"
#include "files/filereplacement.h"
#include "report/internal/pagewriter.h"
#include "report/reporttexts.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <utility>

namespace report {

namespace {

using Texts = ReportTexts;

constexpr int largestImageWidth = 640; // pixels
constexpr qsizetype mostChanges = 500;
constexpr int mostStreams = 4;
constexpr qreal imageWidth = 176 * point;
constexpr qreal imageHeight = 99 * point;
constexpr qreal gap = 10 * point;
constexpr int thumbsInRow = 4;

const TextStyle captionStyle = {.size = 7.5, .color = Colour::sub, .mostLines = 1};
const TextStyle labelStyle = {.size = 8.5, .color = Colour::sub, .mostLines = 1};
const TextStyle valueStyle = {.size = 8.5, .mostLines = 3};

/// An image with its caption.
struct ShownImage
{
    QString path; ///< empty without an image
    QString caption;
};

/// Null without a readable image.
QImage loadedImage(const QString &path)
{
    if (path.isEmpty())
        return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.width() > largestImageWidth)
        reader.setScaledSize(size.scaled(largestImageWidth, size.height(), Qt::KeepAspectRatio));
    return reader.read().convertToFormat(QImage::Format_RGB32); // a format that is stored as JPEG
}

/// Draws the pages of one report.
class DocumentPages
{
public:
    DocumentPages(const SiteData &data, PageWriter &page)
        : m_data(data), m_findings(data.findingsByDevice()), m_page(page)
    {
    }

    void write()
    {
        writeTitle();
        writeCounts();
        writeFindings();
        writeChanges();
        if (!m_data.devices.isEmpty())
            m_page.heading(Texts::devices(), 130 * point);
        for (qsizetype index = 0; index < m_data.devices.size(); ++index)
            writeDevice(index);
        m_page.end();
    }

private:
    void writeTitle()
    {
        if (QPainter *painter = m_page.painter())
            painter->fillRect(QRectF(0, 0, m_page.width() + 2 * m_page.left(), 8 * point), Colour::bar);
        write(Texts::report(), {.size = 10, .color = Colour::accent, .weight = QFont::DemiBold}, 4 * point);
        write(m_data.site, {.size = 24, .weight = QFont::DemiBold, .mostLines = 2}, 4 * point);
        QString line = QLocale().toString(m_data.time, QStringLiteral("yyyy-MM-dd HH:mm"));
        if (!m_data.installer.isEmpty())
            line += QStringLiteral("   ·   ") + Texts::titled(Texts::installer(), m_data.installer);
        write(line, {.size = 10, .color = Colour::sub, .mostLines = 2}, 18 * point);
    }

    /// Writes a paragraph and the space below it.
    void write(const QString &text, const TextStyle &style, qreal below)
    {
        m_page.need(m_page.textHeight(text, style, m_page.width()));
        m_page.space(m_page.drawText({m_page.left(), m_page.y()}, m_page.width(), text, style) + below);
    }

    void writeCounts()
    {
        const auto conspicuous =
            std::count_if(m_findings.cbegin(), m_findings.cend(),
                          [](const QList<Finding> &findings) { return !findings.isEmpty(); });
        const auto reached = std::count_if(m_data.devices.cbegin(), m_data.devices.cend(),
                                           [](const ReportDevice &device) { return device.isRead; });
        const QList<std::pair<QString, qsizetype>> counts = {
            {Texts::devices(), m_data.devices.size()},
            {Texts::reached(), reached},
            {Texts::conspicuous(), conspicuous},
            {Texts::changes(), m_data.changes.size() + m_data.droppedChanges}};
        const qreal width = (m_page.width() - 3 * gap) / 4;
        const qreal height = 54 * point;
        qreal x = m_page.left();
        for (qsizetype index = 0; index < counts.size(); ++index) {
            const auto &[label, number] = counts.at(index);
            if (QPainter *painter = m_page.painter())
                fillPane(*painter, QRectF(x, m_page.y(), width, height));
            const bool isWarning = index == 2 && number > 0;
            m_page.drawText({x + gap, m_page.y() + 8 * point}, width - 2 * gap, QString::number(number),
                            {.size = 18,
                             .color = isWarning ? Colour::warn : Colour::ink,
                             .weight = QFont::DemiBold,
                             .mostLines = 1});
            m_page.drawText({x + gap, m_page.y() + 34 * point}, width - 2 * gap, label, labelStyle);
            x += width + gap;
        }
        m_page.space(height);
    }

    static void fillPane(QPainter &painter, const QRectF &area)
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Colour::quiet);
        painter.drawRoundedRect(area, 5 * point, 5 * point);
    }

    void writeFindings()
    {
        m_page.heading(Texts::findings(), 50 * point);
        if (m_data.findings.isEmpty()) {
            write(Texts::noFindings(), {.size = 9.5, .color = Colour::ok}, 0);
            return;
        }
        QList<QStringList> rows;
        for (const Finding &finding : m_data.findings) {
            const ReportDevice &device = m_data.devices.at(finding.device);
            rows.append({Texts::finding(finding.kind), device.title(), device.ipport, finding.text});
        }
        m_page.table(columns({Texts::findings(), Texts::name(), Texts::address(), Texts::details()},
                             {0.23, 0.23, 0.22, 0.32}),
                     rows, true);
    }

    void writeChanges()
    {
        m_page.heading(Texts::changes(), 50 * point);
        if (m_data.changes.isEmpty()) {
            write(Texts::noChanges(), {.size = 9.5, .color = Colour::sub}, 0);
            return;
        }
        const qsizetype first = std::max<qsizetype>(0, m_data.changes.size() - mostChanges);
        if (first + m_data.droppedChanges > 0)
            write(Texts::droppedChanges(first + m_data.droppedChanges), labelStyle, 4 * point);
        QList<QStringList> rows;
        for (qsizetype index = first; index < m_data.changes.size(); ++index) {
            const VisitChange &change = m_data.changes.at(index);
            rows.append({change.time.toString(QStringLiteral("MM-dd HH:mm:ss")),
                         change.device.isEmpty() ? change.ipport : change.device + u'\n' + change.ipport,
                         change.operation, change.value});
        }
        m_page.table(columns({Texts::time(), Texts::devices(), Texts::operation(), Texts::value()},
                             {0.17, 0.31, 0.24, 0.28}),
                     rows, false);
    }

    [[nodiscard]] QList<PageWriter::Column> columns(const QStringList &titles,
                                                    const QList<qreal> &shares) const
    {
        QList<PageWriter::Column> list;
        for (qsizetype index = 0; index < titles.size(); ++index)
            list.append({.title = titles.at(index), .width = shares.at(index) * m_page.width()});
        return list;
    }

    // One device: its title, its current image (with that from before a change below it) on the left, its
    // values and findings on the right, and further images in rows below.

    void writeDevice(qsizetype index)
    {
        const ReportDevice &device = m_data.devices.at(index);
        const QList<ShownImage> main = mainImages(device);
        const QList<ShownImage> thumbs = furtherImages(device);
        const QList<std::pair<QString, QString>> values = valuesOf(device);
        const QList<Finding> &findings = m_findings.at(index);

        const qreal valuesX = m_page.left() + imageWidth + 14 * point;
        const qreal valuesWidth = m_page.left() + m_page.width() - valuesX;
        const qreal labelWidth = 84 * point;
        const auto valueHeight = [&](const QString &text) {
            return m_page.textHeight(text, valueStyle, valuesWidth - labelWidth) + 2.5 * point;
        };
        const auto findingHeight = [&](const Finding &finding) {
            return m_page.textHeight(Texts::finding(finding), valueStyle, valuesWidth - 12 * point) +
                   2.5 * point;
        };
        const qreal aboveFindings = findings.isEmpty() ? 0 : 5 * point;
        qreal right = aboveFindings;
        for (const auto &[label, value] : values)
            right += valueHeight(value);
        for (const Finding &finding : findings)
            right += findingHeight(finding);
        const qreal captioned = imageHeight + 13 * point;
        const qreal left = static_cast<qreal>(main.size()) * captioned;
        const qreal title = 24 * point;
        m_page.need(title + std::max(left, right) + (thumbs.isEmpty() ? 0 : thumbRowHeight()));

        writeDeviceTitle(device);
        const qreal top = m_page.y();
        for (qsizetype number = 0; number < main.size(); ++number)
            drawImage({m_page.left(), top + static_cast<qreal>(number) * captioned},
                      {imageWidth, imageHeight}, main.at(number));
        qreal y = top;
        for (const auto &[label, value] : values) {
            m_page.drawText({valuesX, y}, labelWidth - 4 * point, label, labelStyle);
            m_page.drawText({valuesX + labelWidth, y}, valuesWidth - labelWidth, value, valueStyle);
            y += valueHeight(value);
        }
        y += aboveFindings;
        for (const Finding &finding : findings) {
            if (QPainter *painter = m_page.painter()) {
                painter->setRenderHint(QPainter::Antialiasing);
                painter->setPen(Qt::NoPen);
                painter->setBrush(Colour::warn);
                painter->drawEllipse(QPointF(valuesX + 3 * point, y + 5.5 * point), 3 * point, 3 * point);
            }
            m_page.drawText({valuesX + 12 * point, y}, valuesWidth - 12 * point, Texts::finding(finding),
                            {.size = 8.5, .color = Colour::warn, .weight = QFont::DemiBold, .mostLines = 3});
            y += findingHeight(finding);
        }
        m_page.moveTo(top + std::max(left, y - top));
        writeThumbs(thumbs);
        m_page.space(14 * point);
    }

    void writeDeviceTitle(const ReportDevice &device)
    {
        if (QPainter *painter = m_page.painter()) {
            painter->setPen(QPen(Colour::line, 0.6 * point));
            painter->drawLine(QPointF(m_page.left(), m_page.y()),
                              QPointF(m_page.left() + m_page.width(), m_page.y()));
        }
        const QString title = device.title().isEmpty() ? device.ipport : device.title();
        m_page.drawText({m_page.left(), m_page.y() + 6 * point}, m_page.width(), title,
                        {.size = 11, .weight = QFont::DemiBold, .mostLines = 1});
        m_page.space(24 * point);
    }

    /// The current image of the first channel, and that from before a change.
    static QList<ShownImage> mainImages(const ReportDevice &device)
    {
        const int channel = device.images.isEmpty() ? 0 : device.images.constFirst().channel;
        ShownImage now = {.path = {}, .caption = {}};
        if (!device.images.isEmpty()) {
            now.path = device.images.constFirst().path;
            now.caption =
                now.path.isEmpty() ? device.images.constFirst().message : device.images.constFirst().name;
        }
        QList<ShownImage> images = {now};
        for (const BeforeImages::Image &before : device.imagesBefore) {
            if (before.channel != channel)
                continue;
            images.first().caption = captionOf(Texts::imageNow(), device, channel);
            images.append({.path = before.path, .caption = beforeCaption(device, before)});
        }
        return images;
    }

    /// The images of the other channels; those from before changes are next to the current ones.
    static QList<ShownImage> furtherImages(const ReportDevice &device)
    {
        QList<ShownImage> images;
        const int first = device.images.isEmpty() ? 0 : device.images.constFirst().channel;
        for (const BeforeImages::Image &before : device.imagesBefore) {
            if (before.channel == first)
                continue;
            images.append({.path = before.path, .caption = beforeCaption(device, before)});
            for (const ReportImage &image : device.images) {
                if (image.channel == before.channel)
                    images.append(
                        {.path = image.path, .caption = captionOf(Texts::imageNow(), device, image.channel)});
            }
        }
        for (const ReportImage &image : device.images) {
            const bool isShown = std::any_of(
                device.imagesBefore.cbegin(), device.imagesBefore.cend(),
                [&image](const BeforeImages::Image &before) { return before.channel == image.channel; });
            if (image.channel != first && !isShown && !image.path.isEmpty())
                images.append({.path = image.path, .caption = image.name});
        }
        return images;
    }

    static QString captionOf(const QString &kind, const ReportDevice &device, int channel)
    {
        return device.channelCount > 1 ? QStringLiteral("%1 · %2").arg(kind, Texts::channel(channel + 1))
                                       : kind;
    }
    static QString beforeCaption(const ReportDevice &device, const BeforeImages::Image &before)
    {
        return captionOf(Texts::imageBefore(), device, before.channel) +
               before.time.toString(QStringLiteral(" · HH:mm:ss"));
    }

    static QList<std::pair<QString, QString>> valuesOf(const ReportDevice &device)
    {
        const auto reported = [](const QString &value) {
            return value.isEmpty() ? Texts::notReported() : value;
        };
        QList<std::pair<QString, QString>> values = {
            {Texts::address(), device.ipport},
            {QStringLiteral("MAC"), reported(device.mac)},
            {Texts::model(), device.model.isEmpty() || device.type.isEmpty()
                                 ? reported(device.model + device.type)
                                 : QStringLiteral("%1 (%2)").arg(device.model, device.type)},
            {Texts::firmware(), reported(device.version)},
            {Texts::serial(), reported(device.serial)}};
        if (!device.isRead)
            return values;
        const DeviceInspection &inspection = device.inspection;
        values.append({Texts::clock(), inspection.clockOffset ? Texts::clockOffset(*inspection.clockOffset)
                                                              : Texts::notReported()});
        values.append({Texts::timeServer(), Texts::timeServerOf(inspection)});
        if (device.channelCount > 1)
            values.append({Texts::channels(), QString::number(device.channelCount)});
        QStringList streams;
        for (const StreamSettings &stream : inspection.streams) {
            if (streams.size() == mostStreams) {
                streams.append(Texts::moreChannels(inspection.streams.size() - mostStreams));
                break;
            }
            const QString text = Texts::streamOf(stream);
            streams.append(inspection.streams.size() > 1
                               ? QStringLiteral("%1: %2").arg(stream.channel + 1).arg(text)
                               : text);
        }
        if (streams.isEmpty())
            streams.append(Texts::notReported());
        for (qsizetype index = 0; index < streams.size(); ++index)
            values.append({index == 0 ? Texts::stream() : QString(), streams.at(index)});
        return values;
    }

    [[nodiscard]] QSizeF thumbSize() const
    {
        const qreal width = (m_page.width() - (thumbsInRow - 1) * gap) / thumbsInRow;
        return {width, width * 9 / 16};
    }
    [[nodiscard]] qreal thumbRowHeight() const { return thumbSize().height() + 16 * point; }

    void writeThumbs(const QList<ShownImage> &images)
    {
        for (qsizetype first = 0; first < images.size(); first += thumbsInRow) {
            m_page.space(first == 0 ? 6 * point : 0);
            m_page.need(thumbRowHeight());
            for (qsizetype index = first; index < std::min(images.size(), first + thumbsInRow); ++index) {
                const qreal x = static_cast<qreal>(index - first) * (thumbSize().width() + gap);
                drawImage({m_page.left() + x, m_page.y()}, thumbSize(), images.at(index));
            }
            m_page.space(thumbRowHeight());
        }
    }

    void drawImage(QPointF position, QSizeF size, const ShownImage &image)
    {
        const QRectF area(position, size);
        const QImage picture = m_page.isMeasuring() ? QImage() : loadedImage(image.path);
        if (QPainter *painter = m_page.painter()) {
            painter->fillRect(area, picture.isNull() ? Colour::quiet : Colour::bar);
            if (!picture.isNull()) {
                const QSizeF shown = QSizeF(picture.size()).scaled(size, Qt::KeepAspectRatio);
                const QPointF corner(area.center().x() - shown.width() / 2,
                                     area.center().y() - shown.height() / 2);
                painter->setRenderHint(QPainter::SmoothPixmapTransform);
                painter->drawImage(QRectF(corner, shown), picture);
            }
        }
        if (picture.isNull()) {
            const TextStyle style = {.size = 8.5, .color = Colour::faint, .mostLines = 1};
            const qreal textWidth =
                std::min(size.width(), QFontMetricsF(fontOf(style)).horizontalAdvance(Texts::noImage()));
            m_page.drawText({area.center().x() - textWidth / 2, area.center().y() - 6 * point}, size.width(),
                            Texts::noImage(), style);
        }
        m_page.drawText({position.x(), position.y() + size.height() + 2 * point}, size.width(), image.caption,
                        captionStyle);
    }

    const SiteData &m_data;
    const QList<QList<Finding>> m_findings; ///< by device
    PageWriter &m_page;
};

/// The number of pages of a report.
int pageCountOf(const SiteData &data, QPdfWriter &device, const QString &footText)
{
    PageWriter page(device, nullptr, footText, 0);
    DocumentPages(data, page).write();
    return page.pageNumber();
}

} // namespace

} // namespace report

QString saveSiteDocument(const SiteData &data, const QString &path)
{
    using namespace report;
    QByteArray pdf;
    QBuffer output(&pdf);
    output.open(QIODevice::WriteOnly);
    QPdfWriter device(&output);
    device.setResolution(unitsPerInch);
    device.setPageSize(QPageSize(QPageSize::A4));
    device.setPageMargins(QMarginsF());
    device.setTitle(QStringLiteral("%1 - %2").arg(data.site, ReportTexts::report()));
    device.setCreator(QStringLiteral("BRELM Tool"));
    const QString footText =
        QStringLiteral("%1   ·   %2   ·   %3")
            .arg(data.site, ReportTexts::report(), data.time.toString(QStringLiteral("yyyy-MM-dd HH:mm")));
    const int pageCount = pageCountOf(data, device, footText);
    QPainter painter;
    if (!painter.begin(&device))
        return ReportTexts::notWritten();
    PageWriter page(device, &painter, footText, pageCount);
    DocumentPages(data, page).write();
    if (!painter.end())
        return ReportTexts::notWritten();
    return replaceFile(path, withSearchableText(pdf, page.allText(), fontOf({})));
}
