#include "device/registry/bytetext.h"

#include "sdk/camerablocks.h"

#include <QTextBoundaryFinder>

namespace {

bool isInvisible(QChar character)
{
    const char16_t code = character.unicode();
    return character.category() == QChar::Other_Control || code == 0x061C || code == 0x200E ||
           code == 0x200F || (code >= 0x2028 && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

} // namespace

int ByteText::channelNameBytes()
{
    return static_cast<int>(sdk::ChannelNameItem().name.size()) - 1; // without the terminating zero
}

int ByteText::bytes(const QString &text)
{
    return static_cast<int>(text.toUtf8().size());
}

QString ByteText::truncated(const QString &text, int bytes)
{
    if (ByteText::bytes(text) <= bytes)
        return text;
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    qsizetype used = 0;
    for (qsizetype next = graphemes.toNextBoundary(); next > 0; next = graphemes.toNextBoundary()) {
        used += QStringView(text).sliced(end, next - end).toUtf8().size();
        if (used > bytes)
            break;
        end = next;
    }
    return text.left(end);
}

QString ByteText::withoutInvisible(QString text)
{
    text.removeIf(isInvisible);
    return text;
}
