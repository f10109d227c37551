// The page breaks of a document, whose page size must be set.
#pragma once

#include <QtGlobal>

class QTextBlock;
class QTextDocument;

/// The index of the page at the position `y` of the document's layout.
[[nodiscard]] int pageOf(const QTextDocument &document, qreal y);

/// A quoted paragraph is a note; its box is painted with the page.
[[nodiscard]] bool isNote(const QTextBlock &block);

/// Keeps a table, an image or code with the paragraph before it, a note, a list entry, and a heading with the
/// first lines below it on one page. A table without such a paragraph may be divided: a page break in its
/// first cell would break its layout. `firstLines` is the height of these lines, in units of the layout.
void placePageBreaks(QTextDocument &document, qreal firstLines);
