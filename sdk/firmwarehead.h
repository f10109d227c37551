// What a firmware file tells of itself, by the lines at its head or by its name.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk {

/// No head is longer, with the empty line that ends it.
inline constexpr std::size_t longestFirmwareHead = 4096;

struct FirmwareHead
{
    std::vector<std::string> models; ///< that the file is for; none when it does not tell
    std::string version;             ///< "2.900.0", "2.900.0.R"; empty when it does not tell

    /// Whether the file is for this model. One that names no models, and a model that is not known, fit.
    [[nodiscard]] bool fits(std::string_view model) const;
};

/// What came of reading a head.
struct FirmwareHeadReading
{
    enum class Kind
    {
        Unknown, ///< the file does not begin as ours do, and may still be firmware
        Damaged, ///< it does, and what follows makes no sense
        Known,
    };
    Kind kind = Kind::Unknown;
    FirmwareHead head = {}; ///< of Known
};

/// Reads the head at the beginning of `bytes`, of which the first longestFirmwareHead are enough:
///
///     BRELM-FIRMWARE 1
///     model=B-2230-IR,B-2231-IR
///     version=2.900.0
///     (an empty line)
///
/// Other keys are passed over, a line may end with CR LF, and what follows a version behind a blank or a
/// comma, as the date of a build does, is no part of it.
[[nodiscard]] FirmwareHeadReading readFirmwareHead(std::string_view bytes);

/// Whether two versions name the same firmware, as files and devices write them: with or without a "v"
/// before, and with anything behind a blank or a comma. Letters behind the numbers, as in "2.900.0.R", count
/// only when both have some. False when one of them has no number.
[[nodiscard]] bool isSameVersion(std::string_view one, std::string_view other);

/// What a file is for by its name, without the folder: "B-2230-IR,B-2231-IR_2.900.0.bin", with or without a
/// "v" before the version, and with anything behind a further "_". Nothing for other names.
[[nodiscard]] std::optional<FirmwareHead> firmwareHeadOfName(std::string_view fileName);

} // namespace sdk
