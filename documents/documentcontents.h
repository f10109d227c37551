// The table of contents of a long document.
#pragma once

#include <QTextBlock>

#include <functional>

class QTextDocument;

/// A table of the sections (headings of level 2) of a document with their pages. A document with fewer than
/// eight sections gets no table and is unchanged. The document must outlive this object.
class DocumentContents
{
public:
    /// Inserts a line for each section after the second block of the document, the paragraph below the title.
    /// `style` formats such a line. The first section then begins on a new page. The numbers of the pages end
    /// at `width`, in units of the layout.
    DocumentContents(QTextDocument &document, qreal width,
                     const std::function<void(const QTextBlock &line)> &style);

    /// Writes the number of the page of each section into its line; called once. `page` returns the index of
    /// the page of a block, from 0.
    void setPages(const std::function<int(const QTextBlock &heading)> &page) const;

private:
    QList<QTextBlock> m_headings;
    QList<QTextBlock> m_lines; ///< of the headings, with a tab at the end
};
