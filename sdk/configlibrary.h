// The configuration library's roles: packing and unpacking configuration text.
#pragma once

#include <cstdint>
#include <string_view>

namespace sdk {

/// Configuration text is JSON, one object for each configuration name. Operations may be called from any
/// thread.
class ConfigLibrary
{
public:
    virtual ~ConfigLibrary() = default;

    /// Unpacks `text` of the configuration `name` into `record`, which is `recordSize` bytes; `returnedSize`
    /// is set to the bytes that were filled. Keys that are missing leave their fields as they are, numbers
    /// that do not fit are refused. Returns false, with the record unchanged, when the name is unknown, the
    /// record too small or the text not of this configuration.
    virtual bool ConfigParseData(std::string_view name, std::string_view text, void *record,
                                 std::uint32_t recordSize, std::uint32_t &returnedSize) = 0;

    /// Packs `record`, which is `recordSize` bytes, into the text of the configuration `name`: at most
    /// `textSize` bytes with the zero that ends it. Returns false, with `text` unchanged, when the name is
    /// unknown, the record too small or one of its numbers out of range, or the text does not fit.
    virtual bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize,
                                char *text, std::uint32_t textSize) = 0;
};

} // namespace sdk
