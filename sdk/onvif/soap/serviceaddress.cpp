#include "sdk/onvif/soap/serviceaddress.h"

#include <algorithm>
#include <charconv>

namespace sdk::onvif {

namespace {

constexpr std::size_t longestUrl = 2048;

std::optional<int> portOf(std::string_view digits)
{
    int port = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), port);
    if (error != std::errc() || end != digits.data() + digits.size() || port < 1 || port > 65535)
        return std::nullopt;
    return port;
}

bool isPrintable(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return character > ' ' && character < 0x7f; });
}

std::string lowered(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return lower;
}

} // namespace

std::string bracketed(std::string_view host)
{
    return host.find(':') == std::string_view::npos ? std::string(host) : '[' + std::string(host) + ']';
}

std::string ServiceAddress::url() const
{
    return (isSecure ? "https://" : "http://") + bracketed(host) + ':' + std::to_string(port) + path;
}

std::optional<ServiceAddress> serviceAddressOf(std::string_view url)
{
    if (url.size() > longestUrl || !isPrintable(url))
        return std::nullopt;
    const std::size_t schemeEnd = url.find("://");
    if (schemeEnd == std::string_view::npos)
        return std::nullopt;
    const std::string scheme = lowered(url.substr(0, schemeEnd));
    if (scheme != "http" && scheme != "https")
        return std::nullopt;

    ServiceAddress address;
    address.isSecure = scheme == "https";
    address.port = address.isSecure ? httpsPort : httpPort;
    const std::string_view rest = url.substr(schemeEnd + 3);
    const std::size_t authorityEnd = std::min(rest.find_first_of("/?#"), rest.size());
    std::string_view authority = rest.substr(0, authorityEnd);
    const std::string_view path = rest.substr(authorityEnd, rest.find('#') - authorityEnd);
    address.path = path.starts_with('/') ? std::string(path) : '/' + std::string(path);
    if (authority.find('@') != std::string_view::npos)
        return std::nullopt;

    std::string_view portText;
    if (authority.starts_with('[')) {
        const std::size_t bracket = authority.find(']');
        if (bracket == std::string_view::npos)
            return std::nullopt;
        address.host = authority.substr(1, bracket - 1);
        portText = authority.substr(bracket + 1);
    } else {
        const std::size_t colon = std::min(authority.find(':'), authority.size());
        address.host = authority.substr(0, colon);
        portText = authority.substr(colon);
    }
    if (address.host.empty())
        return std::nullopt;
    if (!portText.empty()) {
        const std::optional<int> port = portText.front() == ':' ? portOf(portText.substr(1)) : std::nullopt;
        if (!port)
            return std::nullopt;
        address.port = *port;
    }
    return address;
}

std::optional<ServiceAddress> serviceAt(const ServiceAddress &reached, std::string_view url)
{
    std::optional<ServiceAddress> address = serviceAddressOf(url);
    if (!address)
        return std::nullopt;
    if (address->host != reached.host) {
        address->host = reached.host;
        address->port = reached.port;
        address->isSecure = reached.isSecure;
    }
    if (reached.isSecure && !address->isSecure) {
        address->port = reached.port;
        address->isSecure = true;
    }
    address->identity = reached.identity;
    return address;
}

} // namespace sdk::onvif
