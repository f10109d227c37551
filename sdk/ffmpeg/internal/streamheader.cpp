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
constexpr std::uint64_t documentTypeIdentifier = 0x4282;
constexpr std::uint64_t longestHeader = 1024; // typical headers have 31 to 60 bytes

/// A variable-length integer of EBML: the number of leading zero bits is the number of bytes after the first
/// one.
struct EbmlNumber
{
    std::uint64_t value;    ///< without the length marker
    std::uint64_t withMark; ///< with the marker, as in identifiers
    std::size_t size;
    bool isUnknown; ///< all bits set: an element of unknown size
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

/// Whether the elements of a header fill it exactly and have a Matroska document type.
bool isMatroskaHeader(Bytes elements)
{
    bool isMatroska = false;
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
            isMatroska = type == "matroska" || type == "webm";
        }
        elements = elements.subspan(length->size + length->value);
    }
    return isMatroska;
}

enum class HeaderState
{
    NoHeader,
    Unfinished,
    Header,
};

/// Classifies bytes that start with a header's identifier.
HeaderState classify(Bytes candidate)
{
    const Bytes rest = candidate.subspan(headerIdentifier.size());
    if (rest.empty())
        return HeaderState::Unfinished;
    const std::optional<EbmlNumber> length = readNumber(rest);
    if (!length)
        return rest.front() == 0 ? HeaderState::NoHeader : HeaderState::Unfinished;
    if (length->isUnknown || length->value > longestHeader)
        return HeaderState::NoHeader;
    if (rest.size() < length->size + length->value)
        return HeaderState::Unfinished;
    return isMatroskaHeader(rest.subspan(length->size)) ? HeaderState::Header : HeaderState::NoHeader;
}

/// The number of last bytes that are the start of an identifier, up to a complete one.
std::size_t identifierPrefix(Bytes bytes)
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
    std::size_t position = 0;
    while (position < bytes.size()) {
        if (m_candidate.empty()) {
            const void *first =
                std::memchr(&bytes[position], headerIdentifier.front(), bytes.size() - position);
            if (!first)
                return std::nullopt;
            position = static_cast<std::size_t>(static_cast<const std::uint8_t *>(first) - bytes.data());
        }
        addToCandidate(bytes[position]);
        ++position;
        if (m_candidate.size() < headerIdentifier.size())
            continue;
        switch (classify(m_candidate)) {
        case HeaderState::Header:
            m_header = m_candidate;
            keepEnd(); // if the last byte of this header was lost, the first byte of the next one has
                       // replaced it
            return position;
        case HeaderState::NoHeader:
            keepEnd();
            break;
        case HeaderState::Unfinished:
            break;
        }
    }
    return std::nullopt;
}

void StreamHeaderFinder::addToCandidate(std::uint8_t byte)
{
    m_candidate.push_back(byte);
    const std::size_t prefix = identifierPrefix(m_candidate);
    // Headers are not nested: a complete identifier within the candidate starts a new one. An incomplete
    // candidate must be a prefix of the identifier.
    if (prefix == headerIdentifier.size() || m_candidate.size() <= headerIdentifier.size())
        keepEnd();
}

void StreamHeaderFinder::keepEnd()
{
    m_candidate.erase(m_candidate.begin(),
                      m_candidate.end() - static_cast<std::ptrdiff_t>(identifierPrefix(m_candidate)));
}

} // namespace sdk::ffmpeg
