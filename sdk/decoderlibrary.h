#pragma once

namespace sdk {

/// Decodes live streams into pictures and sound, one port per live view.
/// Its roles arrive with the operations that call them.
class DecoderLibrary
{
public:
    virtual ~DecoderLibrary() = default;
};

} // namespace sdk
