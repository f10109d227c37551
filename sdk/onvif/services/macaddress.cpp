#include "sdk/onvif/services/macaddress.h"

namespace sdk::onvif {

std::string canonicalMac(std::string_view text)
{
    constexpr std::size_t digits = 12;
    std::string hex;
    for (char letter : text) {
        if (letter >= 'A' && letter <= 'F')
            letter = static_cast<char>(letter - 'A' + 'a');
        if ((letter >= '0' && letter <= '9') || (letter >= 'a' && letter <= 'f'))
            hex += letter;
        else if (letter != ':' && letter != '-' && letter != '.')
            return {};
    }
    if (hex.size() != digits || hex.find_first_not_of('0') == std::string::npos)
        return {};
    std::string mac;
    for (std::size_t place = 0; place < digits; place += 2) {
        if (place > 0)
            mac += ':';
        mac += hex[place];
        mac += hex[place + 1];
    }
    return mac;
}

} // namespace sdk::onvif
