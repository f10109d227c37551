#include "sdk/configtext/configtextlibrary.h"

#include "sdk/configtext/configtext.h"

#include <cstring>

namespace sdk {

bool ConfigTextLibrary::ConfigParseData(std::string_view name, std::string_view text, void *record,
                                        std::uint32_t recordSize, std::uint32_t &returnedSize)
{
    const std::optional<std::uint32_t> filled = unpackConfigText(name, text, record, recordSize);
    returnedSize = filled.value_or(0);
    return filled.has_value();
}

bool ConfigTextLibrary::ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize,
                                       char *text, std::uint32_t textSize)
{
    const std::optional<QByteArray> packed = packConfigText(name, record, recordSize);
    // The constant data of a byte array are null-terminated.
    if (!packed || !text || static_cast<std::size_t>(packed->size()) >= textSize)
        return false;
    std::memcpy(text, packed->constData(), static_cast<std::size_t>(packed->size()) + 1);
    return true;
}

} // namespace sdk
