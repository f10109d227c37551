#pragma once

namespace sdk {

/// Packs and unpacks configuration text (JSON, one object per configuration name) to and from records.
/// Its roles arrive with the operations that call them.
class ConfigLibrary
{
public:
    virtual ~ConfigLibrary() = default;
};

} // namespace sdk
