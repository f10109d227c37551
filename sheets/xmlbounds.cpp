#include "sheets/xmlbounds.h"

namespace sheets {

namespace {

// Sizes of the parser's allocations.
constexpr qint64 nodeSize = 64; // of an element, a text or a comment
constexpr qint64 attributeSize = 40;

} // namespace

qint64 neededXmlMemory(QByteArrayView text)
{
    qint64 nodes = 0;
    qint64 attributes = 0;
    char previous = 0;
    for (const char character : text) {
        nodes += (previous == '<' && character != '/') || (previous == '>' && character != '<');
        attributes += character == '=';
        previous = character;
    }
    return text.size() + nodes * nodeSize + attributes * attributeSize;
}

bool isNestedDeeper(pugi::xml_node top, int depth)
{
    int level = 0;
    for (pugi::xml_node node = top; node && level <= depth;) {
        if (node.first_child()) {
            node = node.first_child();
            ++level;
            continue;
        }
        while (node != top && !node.next_sibling()) {
            node = node.parent();
            --level;
        }
        if (node == top)
            break;
        node = node.next_sibling();
    }
    return level > depth;
}

} // namespace sheets
