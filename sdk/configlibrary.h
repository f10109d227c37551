// The interface of the configuration library: packing and unpacking configuration texts.
#pragma once

#include <cstdint>
#include <string_view>

namespace sdk {

/// A configuration text is a JSON object whose one key is the name of the configuration. Operations may be
/// called from any thread.
class ConfigLibrary
{
public:
    virtual ~ConfigLibrary() = default;

    /// Unpacks `text` of the configuration `name` into `record`, which has `recordSize` bytes; `returnedSize`
    /// is set to the number of filled bytes. The fields of missing keys are not changed. Returns false, with
    /// the record unchanged, when the name is unknown, the record too small, the text of another
    /// configuration, or a value out of range.
    virtual bool ConfigParseData(std::string_view name, std::string_view text, void *record,
                                 std::uint32_t recordSize, std::uint32_t &returnedSize) = 0;

    /// Packs `record`, which has `recordSize` bytes, into the text of the configuration `name`: at most
    /// `textSize` bytes including the terminating zero. Returns false, with `text` unchanged, when the name
    /// is unknown, the record too small or one of its numbers out of range, or the text does not fit.
    virtual bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize,
                                char *text, std::uint32_t textSize) = 0;
};

} // namespace sdk
