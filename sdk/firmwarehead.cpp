#include "sdk/firmwarehead.h"

#include <algorithm>
#include <cctype>

namespace sdk {

namespace {

constexpr std::string_view firstLine = "BRELM-FIRMWARE 1";
constexpr std::string_view firstWord = "BRELM-FIRMWARE";
constexpr std::size_t longestModel = 32;
constexpr std::size_t longestVersion = 63; // a device tells its version in a field of 64 bytes
constexpr std::size_t mostModels = 64;

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

bool isLetterOrDigit(char letter)
{
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') || isDigit(letter);
}

bool isModelLetter(char letter)
{
    return isLetterOrDigit(letter) || letter == '-' || letter == '/' || letter == '.' || letter == '+';
}

bool isModel(std::string_view text)
{
    return !text.empty() && text.size() <= longestModel && std::ranges::all_of(text, isModelLetter);
}

/// The numbers that a version begins with: "2.900.0" of "2.900.0.R".
std::string_view numbersOf(std::string_view version)
{
    std::string_view numbers = version.substr(0, version.find_first_not_of("0123456789."));
    while (numbers.ends_with('.'))
        numbers.remove_suffix(1);
    return numbers;
}

/// At least two numbers with dots between, and then parts of letters: "2.900.0", "2.900.0.R".
bool isVersion(std::string_view text)
{
    if (text.empty() || text.size() > longestVersion || !isDigit(text.front()) ||
        !isLetterOrDigit(text.back()))
        return false;
    const bool isOfParts =
        std::ranges::all_of(text, [](char letter) { return isLetterOrDigit(letter) || letter == '.'; });
    return isOfParts && numbersOf(text).find('.') != std::string_view::npos &&
           text.find("..") == std::string_view::npos;
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// A version without what devices and files put around it: a "v" before, the date of the build behind.
std::string_view plainVersion(std::string_view version)
{
    version = trimmed(version);
    if (version.starts_with('v') || version.starts_with('V'))
        version.remove_prefix(1);
    return version.substr(0, version.find_first_of(" \t,"));
}

/// Takes what is before the next `end` off `text`, and the `end` too.
std::string_view takeUntil(std::string_view &text, char end)
{
    const std::string_view piece = text.substr(0, text.find(end));
    text.remove_prefix(std::min(text.size(), piece.size() + 1));
    return piece;
}

/// None when one of them is no model, or when there are too many.
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
    const auto lower = [](char letter) {
        return std::tolower(static_cast<unsigned char>(letter));
    };
    return std::ranges::equal(one, other, {}, lower, lower);
}

/// Takes what a line of the head tells. Returns false when it makes no sense.
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
    const std::string_view wanted = trimmed(model);
    return models.empty() || wanted.empty() ||
           std::ranges::any_of(models, [wanted](const std::string &own) { return isSameText(own, wanted); });
}

bool isSameVersion(std::string_view one, std::string_view other)
{
    one = plainVersion(one);
    other = plainVersion(other);
    const std::string_view numbers = numbersOf(one);
    if (numbers.empty() || numbers != numbersOf(other))
        return false;
    const std::string_view oneLetters = one.substr(numbers.size());
    const std::string_view otherLetters = other.substr(numbers.size());
    const auto hasLetters = [](std::string_view text) {
        return std::ranges::any_of(text, isLetterOrDigit);
    };
    return !hasLetters(oneLetters) || !hasLetters(otherLetters) || isSameText(oneLetters, otherLetters);
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
            // One that does not say what it brings is of no use to anybody.
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
    // A word in front of the version, "Upgrade_2.900.0.bin", is no model: those have figures.
    const bool areModels = !head.models.empty() && std::ranges::all_of(head.models, [](const auto &model) {
        return std::ranges::any_of(model, isDigit);
    });
    if (!areModels || !isVersion(version))
        return std::nullopt;
    head.version = version;
    return head;
}

} // namespace sdk
