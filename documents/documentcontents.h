// The table of contents of a long document.
#pragma once

#include <QTextBlock>

#include <functional>

class QTextDocument;

/// The sections of a document below its first paragraph, with their pages. A document with few sections gets
/// no table.
class DocumentContents
{
public:
    /// Inserts a line for each section after the first paragraph. `style` formats such a line. The document's
    /// first section begins on a new page. `width` is in units of the layout.
    DocumentContents(QTextDocument &document, qreal width,
                     const std::function<void(const QTextBlock &line)> &style);

    /// Writes the page of each section into its line. `page` returns the index of the page of a block.
    void setPages(const std::function<int(const QTextBlock &heading)> &page) const;

private:
    QList<QTextBlock> m_headings;
    QList<QTextBlock> m_lines; ///< of the headings, with a tab at the end
};
