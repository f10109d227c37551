// Build tool that turns a document written in Markdown into a PDF file:
//
//   documentwriter FILE.md FILE.pdf [FOLDER]
//
// FOLDER has the images of the document. Without it, the PDF has no images and no captions. An image that is
// missing in the folder is an error.
#include "documents/documentcontents.h"
#include "documents/documentimages.h"
#include "documents/pagebreaks.h"
#include "documents/searchabletext.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <cstdio>

namespace {

namespace Colour {
const QColor bar(0x17, 0x21, 0x30);
const QColor textColor(0x1b, 0x24, 0x30);
const QColor sub(0x5d, 0x6b, 0x7c);
const QColor faint(0x8a, 0x97, 0xa6);
const QColor line(0xd9, 0xdf, 0xe6);
const QColor quiet(0xf4, 0xf6, 0xf8);
const QColor accent(0x17, 0x69, 0xe0);
const QColor accentSoft(0xe3, 0xee, 0xfc);
} // namespace Colour

// The layout unit is a tenth of a point, so that font sizes are integers.
constexpr int unitsPerInch = 720;
constexpr qreal pt = unitsPerInch / 72.0;
constexpr qreal marginSide = 64 * pt;
constexpr qreal marginTop = 60 * pt;
constexpr qreal marginBottom = 62 * pt;
constexpr qreal notePadding = 9 * pt;
constexpr qreal textSize = 10.5 * pt;

QFont textFont(qreal size, QFont::Weight weight = QFont::Normal)
{
    QFont font;
    font.setFamilies({QStringLiteral("Inter"), QStringLiteral("Noto Sans CJK SC")});
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    // The Latin face has contextual brackets and slashes next to capitals and digits. These glyphs have no
    // character code, so a reader could not search or copy them.
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void setBlockSpace(QTextBlockFormat &format, qreal above, qreal below, int lineHeight = 145)
{
    format.setTopMargin(above);
    format.setBottomMargin(below);
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
}

/// Sets the size, weight and colour of all text in the block; bold text and code keep their format.
void setText(const QTextBlock &block, qreal size, QFont::Weight weight, const QColor &colour)
{
    // The fragments are collected first: a change may merge a fragment with the next.
    QList<std::pair<int, int>> ranges;
    QList<QTextCharFormat> formats;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        ranges.append({fragment.fragment().position(), fragment.fragment().length()});
        formats.append(fragment.fragment().charFormat());
    }
    for (qsizetype index = 0; index < ranges.size(); ++index) {
        const QTextCharFormat &old = formats.at(index);
        const bool isCode = old.fontFixedPitch();
        const bool isBold = old.fontWeight() > QFont::Normal;
        QTextCharFormat format;
        format.setFont(textFont(size, isBold ? std::max(weight, QFont::DemiBold) : weight));
        format.setFontItalic(old.fontItalic());
        format.setForeground(old.isAnchor() ? Colour::accent : colour);
        if (isCode)
            format.setBackground(Colour::quiet);
        if (isCode)
            format.setForeground(Colour::accent.darker(150));
        QTextCursor cursor(block);
        cursor.setPosition(ranges.at(index).first);
        cursor.setPosition(ranges.at(index).first + ranges.at(index).second, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

void styleHeading(const QTextBlock &block)
{
    struct Style
    {
        qreal size, above, below;
    };
    constexpr Style styles[] = {
        {24 * pt, 0, 8 * pt}, {15 * pt, 20 * pt, 6 * pt}, {11.5 * pt, 12 * pt, 3 * pt}};
    const int level = std::clamp(block.blockFormat().headingLevel(), 1, 3);
    const Style &style = styles[level - 1];
    QTextBlockFormat format = block.blockFormat();
    setBlockSpace(format, style.above, style.below, 120);
    QTextCursor(block).setBlockFormat(format);
    setText(block, style.size, QFont::DemiBold, level == 1 ? Colour::bar : Colour::textColor);
}

void styleTable(QTextTable *table, qreal width)
{
    QTextTableFormat format = table->format();
    format.setBorder(0.6 * pt);
    format.setBorderBrush(Colour::line);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(5 * pt);
    format.setCellSpacing(0);
    format.setTopMargin(6 * pt);
    format.setBottomMargin(10 * pt);
    format.setHeaderRowCount(1);
    format.setWidth(QTextLength(QTextLength::FixedLength, width));
    // The first column contains short names; the others share the remaining width.
    QList<QTextLength> columns{QTextLength(QTextLength::PercentageLength, 30)};
    for (int column = 1; column < table->columns(); ++column)
        columns.append(QTextLength(QTextLength::PercentageLength, 70.0 / (table->columns() - 1)));
    format.setColumnWidthConstraints(columns);
    table->setFormat(format);

    for (int row = 0; row < table->rows(); ++row) {
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell cell = table->cellAt(row, column);
            if (row == 0) {
                QTextCharFormat cellFormat = cell.format();
                cellFormat.setBackground(Colour::quiet);
                cell.setFormat(cellFormat);
            }
            for (auto part = cell.begin(); !part.atEnd(); ++part) {
                const QTextBlock block = part.currentBlock();
                QTextBlockFormat blockFormat = block.blockFormat();
                setBlockSpace(blockFormat, 0, 0, 130);
                blockFormat.setAlignment(Qt::AlignLeft);
                QTextCursor(block).setBlockFormat(blockFormat);
                setText(block, 9.5 * pt, row == 0 ? QFont::DemiBold : QFont::Normal,
                        row == 0 ? Colour::sub : Colour::textColor);
            }
        }
    }
}

void styleBlock(const QTextBlock &block)
{
    QTextBlockFormat format = block.blockFormat();
    if (format.headingLevel() > 0) {
        styleHeading(block);
        return;
    }
    if (isNote(block)) {
        setBlockSpace(format, notePadding + 4 * pt, notePadding + 10 * pt);
        format.setLeftMargin(notePadding + 4 * pt);
        format.setRightMargin(notePadding);
    } else if (isImage(block)) {
        setBlockSpace(format, 4 * pt, 5 * pt, 100);
        QTextCursor(block).setBlockFormat(format);
        return;
    } else if (isCaption(block)) {
        setBlockSpace(format, 0, 12 * pt, 130);
        QTextCursor(block).setBlockFormat(format);
        setText(block, 9 * pt, QFont::Normal, Colour::sub);
        return;
    } else if (block.textList()) {
        const bool isLast = block.next().textList() != block.textList();
        setBlockSpace(format, 0, (isLast ? 8 : 3) * pt);
    } else {
        setBlockSpace(format, 0, 7 * pt);
    }
    QTextCursor(block).setBlockFormat(format);
    setText(block, textSize, QFont::Normal, Colour::textColor);
}

/// The first paragraph below the title describes the document.
void styleLead(const QTextBlock &block)
{
    setText(block, 12 * pt, QFont::Normal, Colour::sub);
    QTextBlockFormat format = block.blockFormat();
    setBlockSpace(format, 0, 8 * pt);
    QTextCursor(block).setBlockFormat(format);
}

void style(QTextDocument &document, qreal width)
{
    for (QTextFrame *frame : document.rootFrame()->childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(frame))
            styleTable(table, width);
    }
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!QTextCursor(block).currentTable())
            styleBlock(block);
        if (QTextList *list = block.textList()) {
            QTextListFormat format = list->format();
            format.setIndent(1);
            list->setFormat(format);
        }
    }
    const QTextBlock lead = document.begin().next();
    if (lead.isValid() && lead.blockFormat().headingLevel() == 0)
        styleLead(lead);
}

void styleContents(const QTextBlock &line)
{
    QTextBlockFormat format = line.blockFormat();
    setBlockSpace(format, 0, 5 * pt, 120);
    QTextCursor(line).setBlockFormat(format);
    setText(line, textSize, QFont::Normal, Colour::textColor);
}

void drawNotes(QPainter &painter, const QTextDocument &document, int page)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF text = document.documentLayout()->blockBoundingRect(block);
        if (!isNote(block) || pageOf(document, text.top()) != page)
            continue;
        const QRectF box(0, text.top() - notePadding, document.pageSize().width(),
                         text.height() + 2 * notePadding);
        painter.fillRect(box, Colour::accentSoft);
        painter.fillRect(QRectF(box.topLeft(), QSizeF(2.5 * pt, box.height())), Colour::accent);
    }
}

/// A window has the colour of the page, so that its edge needs a line.
void drawImageEdges(QPainter &painter, const QTextDocument &document, int page)
{
    painter.setPen(QPen(Colour::line, 0.8 * pt));
    painter.setBrush(Qt::NoBrush);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!isImage(block))
            continue;
        const QRectF area = document.documentLayout()->blockBoundingRect(block);
        const qreal height = block.begin().fragment().charFormat().toImageFormat().height();
        if (pageOf(document, area.top()) == page)
            painter.drawRect(QRectF(area.left(), area.top(), document.pageSize().width(), height));
    }
}

void drawPage(QPainter &painter, const QTextDocument &document, int page, const QSizeF &paper,
              const QString &title)
{
    const QSizeF body = document.pageSize();
    painter.save();
    painter.translate(marginSide, marginTop - page * body.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, page * body.height(), body.width(), body.height());
    context.palette.setColor(QPalette::Text, Colour::textColor);
    drawNotes(painter, document, page);
    // The background of code is higher than its line, also of the first line of the next page.
    painter.setClipRect(context.clip.adjusted(0, 0, 0, -pt));
    document.documentLayout()->draw(&painter, context);
    painter.setClipping(false);
    drawImageEdges(painter, document, page);
    painter.restore();

    if (page == 0)
        painter.fillRect(QRectF(0, 0, paper.width(), 8 * pt), Colour::bar);
    const qreal footTop = paper.height() - marginBottom + 18 * pt;
    painter.setPen(QPen(Colour::line, 0.6 * pt));
    painter.drawLine(QPointF(marginSide, footTop), QPointF(paper.width() - marginSide, footTop));
    painter.setFont(textFont(8.5 * pt));
    painter.setPen(Colour::faint);
    const QRectF foot(marginSide, footTop + 6 * pt, paper.width() - 2 * marginSide, 14 * pt);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("%1 / %2").arg(page + 1).arg(document.pageCount()));
}

/// The document as PDF; empty when it could not be painted. `imageFolder` is empty for a document without
/// images.
QByteArray pdfOf(const QString &markdown, const QString &imageFolder)
{
    QByteArray pdf;
    QBuffer output(&pdf);
    output.open(QIODevice::WriteOnly);
    QPdfWriter writer(&output);
    writer.setResolution(unitsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    const QSizeF paper = writer.pageLayout().fullRectPixels(unitsPerInch).size();
    const qreal width = paper.width() - 2 * marginSide;

    QTextDocument document;
    document.setDocumentMargin(0);
    document.setDefaultFont(textFont(textSize));
    document.setBaseUrl(QUrl::fromLocalFile(imageFolder + u'/'));
    document.setMarkdown(imageFolder.isEmpty() ? withoutImages(markdown) : markdown,
                         QTextDocument::MarkdownDialectGitHub);
    document.setIndentWidth(18 * pt);
    placeImages(document, width);
    style(document, width);
    const DocumentContents contents(document, width, styleContents);
    document.setPageSize(QSizeF(width, paper.height() - marginTop - marginBottom));
    placePageBreaks(document, 34 * pt);
    contents.setPages([&document](const QTextBlock &heading) {
        return pageOf(document, document.documentLayout()->blockBoundingRect(heading).top());
    });

    const QString title = document.begin().text();
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("BRELM Tool"));
    QPainter painter;
    if (!painter.begin(&writer))
        return {};
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0)
            writer.newPage();
        drawPage(painter, document, page, paper, title);
    }
    painter.end();
    return withSearchableText(pdf, document.toRawText(), textFont(textSize));
}

/// True if the folder has all images of the document.
bool hasImages(const QString &markdown, const QString &folder)
{
    const QStringList names = imagesOf(markdown);
    for (const QString &name : names) {
        const QString path = folder + u'/' + name;
        if (QImage(path).isNull()) {
            std::fprintf(stderr, "%s: the image is missing or cannot be read\n", qPrintable(path));
            return false;
        }
    }
    return true;
}

bool hasFonts()
{
    const QStringList families = QFontDatabase::families();
    for (const QString &family : {QStringLiteral("Inter"), QStringLiteral("Noto Sans CJK SC")}) {
        if (!families.contains(family)) {
            std::fprintf(stderr, "The font %s is not installed.\n", qPrintable(family));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3 && arguments.size() != 4) {
        std::fprintf(stderr, "usage: documentwriter FILE.md FILE.pdf [FOLDER]\n");
        return 2;
    }
    QFile input(arguments.at(1));
    if (!input.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(input.fileName()), qPrintable(input.errorString()));
        return 1;
    }
    const QString markdown = QString::fromUtf8(input.readAll());
    const QString imageFolder = arguments.value(3);
    if (!hasFonts() || (!imageFolder.isEmpty() && !hasImages(markdown, imageFolder)))
        return 1;
    const QByteArray pdf = pdfOf(markdown, imageFolder);
    if (pdf.isEmpty()) {
        std::fprintf(stderr, "%s: it could not be turned into PDF\n", qPrintable(input.fileName()));
        return 1;
    }
    QDir().mkpath(QFileInfo(arguments.at(2)).path());
    // Unbuffered: Qt does not detect a partially written buffer.
    QSaveFile output(arguments.at(2));
    if (!output.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || output.write(pdf) != pdf.size() ||
        !output.commit()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(output.fileName()), qPrintable(output.errorString()));
        return 1;
    }
    return 0;
}
