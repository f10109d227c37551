#include "sdk/firmwarehead.h"

#include <algorithm>
#include <cctype>

namespace sdk {

namespace {

constexpr std::string_view firstLine = "BRELM-FIRMWARE 1";
constexpr std::string_view firstWord = "BRELM-FIRMWARE";
constexpr std::size_t longestModel = 32;
constexpr std::size_t longestVersion = 63; // devices report their version in a field of 64 bytes
constexpr std::size_t mostModels = 64;

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isLetterOrDigit(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           isDigit(character);
}

bool isModelCharacter(char character)
{
    return isLetterOrDigit(character) || character == '-' || character == '/' || character == '.' ||
           character == '+';
}

bool isModel(std::string_view text)
{
    return !text.empty() && text.size() <= longestModel && std::ranges::all_of(text, isModelCharacter);
}

/// The numbers that a version begins with: "2.900.0" of "2.900.0.R".
std::string_view numbersOf(std::string_view version)
{
    std::string_view numbers = version.substr(0, version.find_first_not_of("0123456789."));
    while (numbers.ends_with('.'))
        numbers.remove_suffix(1);
    return numbers;
}

/// True for at least two numbers separated by dots, optionally followed by parts with letters: "2.900.0",
/// "2.900.0.R".
bool isVersion(std::string_view text)
{
    if (text.empty() || text.size() > longestVersion || !isDigit(text.front()) ||
        !isLetterOrDigit(text.back()))
        return false;
    const bool isOfParts = std::ranges::all_of(
        text, [](char character) { return isLetterOrDigit(character) || character == '.'; });
    return isOfParts && numbersOf(text).find('.') != std::string_view::npos &&
           text.find("..") == std::string_view::npos;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view spaces = " \t\r";
    const std::size_t first = text.find_first_not_of(spaces);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(spaces) - first + 1);
}

/// A version without a leading "v" and a trailing build date.
std::string_view plainVersion(std::string_view version)
{
    version = trimmed(version);
    if (version.starts_with('v') || version.starts_with('V'))
        version.remove_prefix(1);
    return version.substr(0, version.find_first_of(" \t,"));
}

/// Removes the part before the next `end` from `text`, and `end` itself. Returns the part.
std::string_view takeUntil(std::string_view &text, char end)
{
    const std::string_view part = text.substr(0, text.find(end));
    text.remove_prefix(std::min(text.size(), part.size() + 1));
    return part;
}

/// Empty when one of them is not a model, or when there are too many.
std::vector<std::string> modelsIn(std::string_view list)
{
    std::vector<std::string> models;
    while (!list.empty()) {
        const std::string_view model = trimmed(takeUntil(list, ','));
        if (!isModel(model) || models.size() == mostModels)
            return {};
        models.emplace_back(model);
    }
    return models;
}

bool isSameText(std::string_view one, std::string_view other)
{
    const auto lower = [](char character) {
        return std::tolower(static_cast<unsigned char>(character));
    };
    return std::ranges::equal(one, other, {}, lower, lower);
}

/// Reads a line of the head. Returns false for an invalid line.
bool takeLine(std::string_view line, FirmwareHead &head)
{
    if (line.find('=') == std::string_view::npos)
        return false;
    const std::string_view key = trimmed(takeUntil(line, '='));
    const std::string_view value = trimmed(line);
    if (key == "model") {
        head.models = modelsIn(value);
        return !head.models.empty();
    }
    if (key == "version") {
        head.version = plainVersion(value);
        return isVersion(head.version);
    }
    return !key.empty();
}

} // namespace

bool FirmwareHead::fits(std::string_view model) const
{
    const std::string_view requested = trimmed(model);
    return models.empty() || requested.empty() ||
           std::ranges::any_of(models,
                               [requested](const std::string &own) { return isSameText(own, requested); });
}

bool isSameVersion(std::string_view one, std::string_view other)
{
    one = plainVersion(one);
    other = plainVersion(other);
    const std::string_view numbers = numbersOf(one);
    if (numbers.empty() || numbers != numbersOf(other))
        return false;
    const std::string_view oneSuffix = one.substr(numbers.size());
    const std::string_view otherSuffix = other.substr(numbers.size());
    const auto hasLetters = [](std::string_view text) {
        return std::ranges::any_of(text, isLetterOrDigit);
    };
    return !hasLetters(oneSuffix) || !hasLetters(otherSuffix) || isSameText(oneSuffix, otherSuffix);
}

FirmwareHeadReading readFirmwareHead(std::string_view bytes)
{
    using Kind = FirmwareHeadReading::Kind;
    if (!bytes.starts_with(firstWord))
        return {};
    std::string_view rest = bytes.substr(0, longestFirmwareHead);
    if (trimmed(takeUntil(rest, '\n')) != firstLine)
        return {.kind = Kind::Damaged};
    FirmwareHead head;
    while (!rest.empty()) {
        const bool isEnded = rest.find('\n') != std::string_view::npos;
        const std::string_view line = trimmed(takeUntil(rest, '\n'));
        if (line.empty() && isEnded) {
            // A head without a version is invalid.
            return head.version.empty() ? FirmwareHeadReading{.kind = Kind::Damaged}
                                        : FirmwareHeadReading{.kind = Kind::Known, .head = head};
        }
        if (!isEnded || !takeLine(line, head))
            break;
    }
    return {.kind = Kind::Damaged};
}

std::optional<FirmwareHead> firmwareHeadOfName(std::string_view fileName)
{
    if (const std::size_t dot = fileName.rfind('.');
        dot != std::string_view::npos && dot + 1 < fileName.size() && !isDigit(fileName[dot + 1]))
        fileName = fileName.substr(0, dot);
    FirmwareHead head;
    head.models = modelsIn(takeUntil(fileName, '_'));
    const std::string_view version = plainVersion(takeUntil(fileName, '_'));
    // A word before the version ("Upgrade_2.900.0.bin") is not a model: models contain digits.
    const bool areModels = !head.models.empty() && std::ranges::all_of(head.models, [](const auto &model) {
        return std::ranges::any_of(model, isDigit);
    });
    if (!areModels || !isVersion(version))
        return std::nullopt;
    head.version = version;
    return head;
}

} // namespace sdk
