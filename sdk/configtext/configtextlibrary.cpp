#include "sdk/configtext/configtextlibrary.h"

#include "sdk/configtext/configtext.h"

namespace sdk {

bool ConfigTextLibrary::ConfigParseData(std::string_view name, std::string_view text, void *record,
                                        std::uint32_t recordSize, std::uint32_t &returnedSize)
{
    const std::optional<std::uint32_t> filled = unpackConfigText(name, text, record, recordSize);
    returnedSize = filled.value_or(0);
    return filled.has_value();
}

} // namespace sdk
