#include "documents/documentimages.h"

#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

namespace {

const QRegularExpression &imageLine()
{
    static const QRegularExpression line(QStringLiteral("^!\\[([^\\]]*)\\]\\(([^)]+)\\)\\n\\n?"),
                                         QRegularExpression::MultilineOption);
    return line;
}

/// The format of the image of a block; a format of another kind if the block is no image.
QTextCharFormat imageFormat(const QTextBlock &block)
{
    const QTextBlock::iterator first = block.begin();
    return first.atEnd() || block.length() != 2 ? QTextCharFormat() : first.fragment().charFormat();
}

} // namespace

QStringList imagesOf(const QString &markdown)
{
    QStringList names;
    for (auto match = imageLine().globalMatch(markdown); match.hasNext();)
        names.append(match.next().captured(2));
    return names;
}

QString withoutImages(const QString &markdown)
{
    return QString(markdown).remove(imageLine());
}

bool isImage(const QTextBlock &block)
{
    return imageFormat(block).isImageFormat();
}

void placeImages(QTextDocument &document, qreal width)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!isImage(block))
            continue;
        QTextImageFormat format = imageFormat(block).toImageFormat();
        const QImage image(document.baseUrl().resolved(QUrl(format.name())).toLocalFile());
        format.setWidth(width);
        format.setHeight(width * image.height() / std::max(1, image.width()));
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
        cursor.clearSelection();
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        cursor.insertText(format.stringProperty(QTextFormat::ImageAltText));
    }
}

bool isCaption(const QTextBlock &block)
{
    return block.previous().isValid() && isImage(block.previous());
}
