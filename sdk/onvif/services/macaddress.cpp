#include "sdk/onvif/services/macaddress.h"

namespace sdk::onvif {

std::string canonicalMac(std::string_view text)
{
    constexpr std::size_t digits = 12;
    std::string hex;
    for (char character : text) {
        if (character >= 'A' && character <= 'F')
            character = static_cast<char>(character - 'A' + 'a');
        if ((character >= '0' && character <= '9') || (character >= 'a' && character <= 'f'))
            hex += character;
        else if (character != ':' && character != '-' && character != '.')
            return {};
    }
    if (hex.size() != digits || hex.find_first_not_of('0') == std::string::npos)
        return {};
    std::string mac;
    for (std::size_t index = 0; index < digits; index += 2) {
        if (index > 0)
            mac += ':';
        mac += hex[index];
        mac += hex[index + 1];
    }
    return mac;
}

} // namespace sdk::onvif
