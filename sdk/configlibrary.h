// The interface of the configuration library: packing and unpacking configuration texts. It converts data in
// memory and does not access devices.
#pragma once

#include <cstdint>
#include <string_view>

namespace sdk {

/// A configuration is a named group of settings of a device, such as "Network" or "Encode". A configuration
/// text is a JSON object (UTF-8) whose one key is that name, as NetGetNewConfig reads it and NetSetNewConfig
/// writes it. A record is the struct of the configuration (configrecords.h, systemrecords.h, encodeblocks.h,
/// camerablocks.h). Operations may be called from any thread.
class ConfigLibrary
{
public:
    virtual ~ConfigLibrary() = default;

    /// Unpacks `text` of the configuration `name` into `record`, which has `recordSize` bytes. Sets the word
    /// "size" of the record, and `returnedSize`, to the size of the configuration's struct. The fields of
    /// keys that the text lacks are not changed; keys without a field are ignored; strings that are longer
    /// than their field are truncated. Returns false, with the record unchanged and a `returnedSize` of 0,
    /// when the name is unknown, the record is smaller than the struct, the text is too long (depending on
    /// the implementation), not JSON or of another configuration, or a value has the wrong type or is out of
    /// range.
    virtual bool ConfigParseData(std::string_view name, std::string_view text, void *record,
                                 std::uint32_t recordSize, std::uint32_t &returnedSize) = 0;

    /// Packs all fields of `record`, which has `recordSize` bytes, into the text of the configuration `name`.
    /// `text` has room for `textSize` bytes, and gets a terminating zero. Returns false, with `text`
    /// unchanged, when the name is unknown, the record is smaller than the struct, a number of the record is
    /// out of range, or the text does not fit with its zero.
    virtual bool ConfigPackData(std::string_view name, const void *record, std::uint32_t recordSize,
                                char *text, std::uint32_t textSize) = 0;
};

} // namespace sdk
