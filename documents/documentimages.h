// Images of a document: lines of the form "![caption](name.png)" in its Markdown text.
#pragma once

#include <QString>
#include <QStringList>

class QTextBlock;
class QTextDocument;

/// The names of the images of `markdown`, in their order.
[[nodiscard]] QStringList imagesOf(const QString &markdown);

/// Returns `markdown` without its images and their captions.
[[nodiscard]] QString withoutImages(const QString &markdown);

/// Whether the block is an image that has a paragraph of its own.
[[nodiscard]] bool isImage(const QTextBlock &block);

/// Scales the images of `document` to `width`, in units of its layout, and adds their captions as the
/// paragraphs below them. The files are in the base folder of the document.
void placeImages(QTextDocument &document, qreal width);

/// Whether the block is a caption that placeImages() has added.
[[nodiscard]] bool isCaption(const QTextBlock &block);
