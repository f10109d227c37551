// The configuration library's interface, implemented by the project's tables.
#pragma once

#include "sdk/configlibrary.h"

namespace sdk {

/// Has no state, so any thread may call it. configtext.h describes the texts and the limits. After a failure
/// of ConfigParseData(), `returnedSize` is 0.
class ConfigTextLibrary : public ConfigLibrary
{
public:
    bool ConfigParseData(std::string_view name, std::string_view text, void *record, std::uint32_t recordSize,
                         std::uint32_t &returnedSize) override;
    bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize, char *text,
                        std::uint32_t textSize) override;
};

} // namespace sdk
