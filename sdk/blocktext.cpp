#include "sdk/blocktext.h"

#include <algorithm>
#include <cstring>

namespace sdk {

void setBlockText(char *destination, std::size_t size, std::string_view text)
{
    if (size == 0)
        return;
    std::size_t length = std::min(text.size(), size - 1);
    if (length < text.size()) {
        // Bytes 10xxxxxx continue a character: step back to the first byte of the character that does not
        // fit.
        while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
            --length;
    }
    std::copy_n(text.data(), length, destination); // an empty string may be null
    std::memset(destination + length, 0, size - length);
}

} // namespace sdk
