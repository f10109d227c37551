#include "documents/pagebreaks.h"

#include "documents/documentimages.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

namespace {

void breakPageBefore(QTextBlock block)
{
    // Headings, and the sentence before a table, stay on the same page as the following text.
    for (QTextBlock before = block.previous(); before.isValid(); before = before.previous()) {
        const QString text = before.text();
        const bool leadsOn = before.blockFormat().headingLevel() > 1 || text.endsWith(QLatin1Char(':')) ||
                             text.endsWith(QChar(0xff1a));
        if (!leadsOn || QTextCursor(before).currentTable())
            break;
        block = before;
    }
    QTextBlockFormat format = block.blockFormat();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).setBlockFormat(format);
}

bool isCode(const QTextBlock &block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
}

/// The paragraph before a table, an image or code introduces it. Without one it is the block itself.
QTextBlock introductionOf(const QTextBlock &block)
{
    const QTextBlock before = block.previous();
    const bool isParagraph =
        before.isValid() && !isCaption(before) && !isNote(before) && !QTextCursor(before).currentTable();
    return isParagraph ? before : block;
}

} // namespace

int pageOf(const QTextDocument &document, qreal y)
{
    return static_cast<int>(y / document.pageSize().height());
}

bool isNote(const QTextBlock &block)
{
    return block.blockFormat().intProperty(QTextFormat::BlockQuoteLevel) > 0;
}

void placePageBreaks(QTextDocument &document, qreal firstLines)
{
    QAbstractTextDocumentLayout *layout = document.documentLayout();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextTable *table = QTextCursor(block).currentTable();
        const QTextBlock introduction = introductionOf(block);
        QTextBlock first = block;
        qreal bottom = layout->blockBoundingRect(block).top();
        if (table) {
            if (block != table->firstCursorPosition().block() || introduction == block)
                continue;
            first = introduction;
            bottom = layout->frameBoundingRect(table).bottom() - table->format().bottomMargin() - 1;
        } else if (isImage(block)) {
            first = introduction;
            bottom = layout->blockBoundingRect(block.next()).bottom(); // of the caption
        } else if (isCode(block)) {
            first = introduction;
            bottom = layout->blockBoundingRect(block).bottom();
        } else if (isNote(block) || block.textList()) {
            bottom = layout->blockBoundingRect(block).bottom();
        } else if (block.blockFormat().headingLevel() > 0 && block.next().isValid()) {
            const QRectF next = layout->blockBoundingRect(block.next());
            bottom = next.top() + std::min(next.height(), firstLines);
        }
        if (pageOf(document, layout->blockBoundingRect(first).top()) == pageOf(document, bottom))
            continue;
        breakPageBefore(first);
        // The layout of the changed block alone would leave following blocks at their old positions.
        document.markContentsDirty(0, document.characterCount());
    }
}
