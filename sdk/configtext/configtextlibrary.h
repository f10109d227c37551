// The configuration library's interface, implemented by the project's tables.
#pragma once

#include "sdk/configlibrary.h"

namespace sdk {

/// Converts the texts of the simulated devices and of the devices with open standards to records and back, by
/// unpackConfigText() and packConfigText() (configtext.h). The operations are those of ConfigLibrary, with a
/// limit of longestConfigText (512 KiB) for a text to unpack. Has no state, so any thread may call it.
class ConfigTextLibrary : public ConfigLibrary
{
public:
    bool ConfigParseData(std::string_view name, std::string_view text, void *record, std::uint32_t recordSize,
                         std::uint32_t &returnedSize) override;
    bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize, char *text,
                        std::uint32_t textSize) override;
};

} // namespace sdk
