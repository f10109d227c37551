#include "sdk/ffmpeg/internal/streamheader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <string_view>

namespace sdk::ffmpeg {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array<std::uint8_t, 4> headerIdentifier = {0x1A, 0x45, 0xDF, 0xA3};
constexpr std::array<std::uint8_t, 4> clusterIdentifier = {0x1F, 0x43, 0xB6, 0x75};
constexpr std::uint64_t documentTypeIdentifier = 0x4282;
constexpr std::uint64_t longestHeader = 1024; // usual are 31 to 60 bytes

/// A number of EBML: the zero bits before its first one bit say how many bytes follow the first.
struct EbmlNumber
{
    std::uint64_t value;    ///< without the length marker
    std::uint64_t withMark; ///< with it, as identifiers are written
    std::size_t size;
    bool isUnknown; ///< all bits set: "until something else begins"
};

std::optional<EbmlNumber> readNumber(Bytes bytes)
{
    if (bytes.empty() || bytes.front() == 0)
        return std::nullopt;
    const auto size = static_cast<std::size_t>(std::countl_zero(bytes.front())) + 1;
    if (bytes.size() < size)
        return std::nullopt;
    std::uint64_t number = 0;
    for (const std::uint8_t byte : bytes.first(size))
        number = number << 8U | byte;
    const std::uint64_t mark = std::uint64_t{1} << (7 * size);
    const std::uint64_t value = number & (mark - 1);
    return EbmlNumber{value, number, size, value == mark - 1};
}

/// Whether the elements of a header say that a Matroska stream follows, and end where it ends.
bool announcesMatroska(Bytes elements)
{
    bool announced = false;
    while (!elements.empty()) {
        const std::optional<EbmlNumber> identifier = readNumber(elements);
        if (!identifier)
            return false;
        elements = elements.subspan(identifier->size);
        const std::optional<EbmlNumber> length = readNumber(elements);
        if (!length || length->isUnknown || length->value > elements.size() - length->size)
            return false;
        const Bytes content = elements.subspan(length->size, length->value);
        if (identifier->withMark == documentTypeIdentifier) {
            std::string_view type(reinterpret_cast<const char *>(content.data()), content.size());
            type = type.substr(0, type.find('\0'));
            announced = type == "matroska" || type == "webm";
        }
        elements = elements.subspan(length->size + length->value);
    }
    return announced;
}

enum class Verdict
{
    NoHeader,
    Unfinished,
    Header,
};

/// What bytes that begin with a header's identifier are.
Verdict judge(Bytes candidate)
{
    const Bytes rest = candidate.subspan(headerIdentifier.size());
    if (rest.empty())
        return Verdict::Unfinished;
    const std::optional<EbmlNumber> length = readNumber(rest);
    if (!length)
        return rest.front() == 0 ? Verdict::NoHeader : Verdict::Unfinished;
    if (length->isUnknown || length->value > longestHeader)
        return Verdict::NoHeader;
    if (rest.size() < length->size + length->value)
        return Verdict::Unfinished;
    return announcesMatroska(rest.subspan(length->size)) ? Verdict::Header : Verdict::NoHeader;
}

/// How many of the last bytes, up to a whole identifier, begin one.
std::size_t beginOfIdentifier(Bytes bytes)
{
    for (std::size_t count = std::min(headerIdentifier.size(), bytes.size()); count > 0; --count) {
        if (std::equal(bytes.end() - static_cast<std::ptrdiff_t>(count), bytes.end(),
                       headerIdentifier.begin()))
            return count;
    }
    return 0;
}

} // namespace

std::optional<std::size_t> StreamHeaderFinder::find(std::span<const std::uint8_t> bytes)
{
    std::size_t place = 0;
    while (place < bytes.size()) {
        if (m_candidate.empty()) {
            const void *first = std::memchr(&bytes[place], headerIdentifier.front(), bytes.size() - place);
            if (!first)
                return std::nullopt;
            place = static_cast<std::size_t>(static_cast<const std::uint8_t *>(first) - bytes.data());
        }
        addToCandidate(bytes[place]);
        ++place;
        if (m_candidate.size() < headerIdentifier.size())
            continue;
        switch (judge(m_candidate)) {
        case Verdict::Header:
            m_header = m_candidate;
            keepEnd(); // where the last byte of this one was lost, that of the next stands in its place
            return place;
        case Verdict::NoHeader:
            keepEnd();
            break;
        case Verdict::Unfinished:
            break;
        }
    }
    return std::nullopt;
}

void StreamHeaderFinder::addToCandidate(std::uint8_t byte)
{
    m_candidate.push_back(byte);
    const std::size_t begin = beginOfIdentifier(m_candidate);
    // A header holds no other one: where another identifier is complete, the candidate was none. One that is
    // not complete must be its beginning.
    if (begin == headerIdentifier.size() || m_candidate.size() <= headerIdentifier.size())
        keepEnd();
}

void StreamHeaderFinder::keepEnd()
{
    m_candidate.erase(m_candidate.begin(),
                      m_candidate.end() - static_cast<std::ptrdiff_t>(beginOfIdentifier(m_candidate)));
}

std::span<const std::uint8_t, ClusterFinder::identifierSize> ClusterFinder::identifier()
{
    return clusterIdentifier;
}

std::optional<std::size_t> ClusterFinder::find(std::span<const std::uint8_t> bytes)
{
    constexpr std::uint32_t wanted = std::uint32_t{clusterIdentifier[0]} << 24U |
                                     std::uint32_t{clusterIdentifier[1]} << 16U |
                                     std::uint32_t{clusterIdentifier[2]} << 8U | clusterIdentifier[3];
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        m_latest = m_latest << 8U | bytes[place];
        if (m_latest == wanted)
            return place + 1;
    }
    return std::nullopt;
}

} // namespace sdk::ffmpeg
