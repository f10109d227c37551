#include "sdk/onvif/live/internal/rtspurl.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <vector>

#include <arpa/inet.h>

namespace sdk::onvif {

namespace {

/// FFmpeg truncates longer paths silently.
constexpr std::size_t longestPath = 1000;
constexpr std::size_t longestAccount = 127; ///< with the password, a colon and the escape sequences

constexpr std::string_view scheme = "rtsp://";

bool isControl(char character)
{
    constexpr unsigned char firstPrintable = 0x20;
    constexpr unsigned char deletion = 0x7f;
    const auto code = static_cast<unsigned char>(character);
    return code < firstPrintable || code == deletion;
}

/// The bytes of a numeric address; empty for any other string. An IPv6 address may have a zone.
std::vector<unsigned char> addressBytes(const std::string &text)
{
    std::array<unsigned char, sizeof(in6_addr)> bytes{};
    if (inet_pton(AF_INET, text.c_str(), bytes.data()) == 1)
        return {bytes.begin(), bytes.begin() + sizeof(in_addr)};
    if (inet_pton(AF_INET6, text.substr(0, text.find('%')).c_str(), bytes.data()) == 1)
        return {bytes.begin(), bytes.end()};
    return {};
}

bool isPort(std::string_view text)
{
    int port = 0;
    constexpr int largest = 65535;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() && end == text.data() + text.size() && port > 0 && port <= largest;
}

/// `text` with only the necessary bytes escaped, since its length is limited.
std::string escaped(const std::string &text)
{
    constexpr std::string_view special = "%:@/?#[]";
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr unsigned halfByte = 4;
    constexpr unsigned lowHalf = 15;
    std::string result;
    for (const char character : text) {
        if (special.find(character) == std::string_view::npos) {
            result += character;
            continue;
        }
        const auto code = static_cast<unsigned char>(character);
        result += {'%', digits[code >> halfByte], digits[code & lowHalf]};
    }
    return result;
}

std::optional<StreamEnd> readAccount(const RtspOrder &order, std::string &text)
{
    if (order.account.empty())
        return std::nullopt;
    const bool isHarmful = std::any_of(order.account.begin(), order.account.end(), isControl) ||
                           std::any_of(order.password.begin(), order.password.end(), isControl);
    // A colon ends the account, and FFmpeg does not escape quotation marks in quoted strings.
    if (isHarmful || order.account.find_first_of(":\"\\") != std::string::npos)
        return StreamEnd::BadAccount;
    text = escaped(order.account) + ':' + escaped(order.password);
    if (text.size() > longestAccount)
        return StreamEnd::BadAccount;
    text += '@';
    return std::nullopt;
}

} // namespace

std::optional<StreamEnd> readAddress(const RtspOrder &order, RtspAddress &address)
{
    const std::string_view url = order.url;
    if (!url.starts_with(scheme) || std::any_of(url.begin(), url.end(), isControl))
        return StreamEnd::BadUrl;
    const std::string_view rest = url.substr(scheme.size());
    const std::string_view authority = rest.substr(0, rest.find_first_of("/?#"));
    const std::string_view path = rest.substr(authority.size());
    std::string_view port;
    if (authority.starts_with('[')) {
        const std::size_t end = std::min(authority.find(']'), authority.size() - 1);
        address.host = authority.substr(1, end - 1);
        port = authority.substr(end + 1);
    } else {
        address.host = authority.substr(0, authority.find(':'));
        port = authority.substr(address.host.size());
    }
    const bool isPortGood = port.empty() || (port.front() == ':' && isPort(port.substr(1)));
    if (addressBytes(address.host).empty() || !isPortGood || path.size() > longestPath)
        return StreamEnd::BadUrl;
    std::string account;
    if (const std::optional<StreamEnd> fault = readAccount(order, account))
        return fault;
    address.url = std::string(scheme) + account + std::string(rest);
    return std::nullopt;
}

bool isSameAddress(const std::string &one, const std::string &other)
{
    const std::vector<unsigned char> bytes = addressBytes(one);
    return !bytes.empty() && bytes == addressBytes(other);
}

} // namespace sdk::onvif
