#include "documents/documentcontents.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace {
constexpr int sectionLevel = 2;
constexpr int fewestSections = 8;
} // namespace

DocumentContents::DocumentContents(QTextDocument &document, qreal width,
                                   const std::function<void(const QTextBlock &line)> &style)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == sectionLevel)
            m_headings.append(block);
    }
    if (m_headings.size() < fewestSections) {
        m_headings.clear();
        return;
    }
    QTextBlockFormat line;
    line.setTabPositions({QTextOption::Tab(width, QTextOption::RightTab)});
    QTextBlockFormat first = m_headings.constFirst().blockFormat();
    first.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(m_headings.constFirst()).setBlockFormat(first);

    QTextCursor cursor(document.begin().next());
    cursor.movePosition(QTextCursor::EndOfBlock);
    for (const QTextBlock &heading : std::as_const(m_headings)) {
        cursor.insertBlock(line, QTextCharFormat());
        cursor.insertText(heading.text() + u'\t');
        m_lines.append(cursor.block());
        style(cursor.block());
    }
}

void DocumentContents::setPages(const std::function<int(const QTextBlock &heading)> &page) const
{
    for (qsizetype index = 0; index < m_lines.size(); ++index) {
        QTextCursor cursor(m_lines.at(index));
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.insertText(QString::number(page(m_headings.at(index)) + 1));
    }
}
