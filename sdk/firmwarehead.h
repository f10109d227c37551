// The models and the version of a firmware file, from the lines at its start or from its name.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk {

/// The maximum size of a head in bytes, including the empty line at its end.
inline constexpr std::size_t longestFirmwareHead = 4096;

struct FirmwareHead
{
    std::vector<std::string> models; ///< of the devices that the file is for; empty if not reported
    std::string version;             ///< "2.900.0", "2.900.0.R"; never empty in a head that was read

    /// True if the file is for this model. Also true if the file reports no models, or `model` is empty.
    [[nodiscard]] bool fits(std::string_view model) const;
};

/// The result of reading a head.
struct FirmwareHeadReading
{
    enum class Kind
    {
        Unknown, ///< the file does not start with "BRELM-FIRMWARE"; it may still be firmware
        Damaged, ///< the head is invalid
        Known,
    };
    Kind kind = Kind::Unknown;
    FirmwareHead head = {}; ///< valid with Known
};

/// Reads the head at the start of `bytes`, of which the first longestFirmwareHead are sufficient:
///
///     BRELM-FIRMWARE 1
///     model=B-2230-IR,B-2231-IR
///     version=2.900.0
///     (an empty line)
///
/// Other keys are ignored. A head without a version is damaged. A line may end with CR LF. A version ends at
/// the first space or comma, which may be followed by a build date.
[[nodiscard]] FirmwareHeadReading readFirmwareHead(std::string_view bytes);

/// True if two versions, from files or devices, are the same firmware. A leading "v" is ignored, and so is
/// the part after a space or comma. Letters after the numbers ("2.900.0.R") are compared only if both
/// versions have them. False when one of them has no number.
[[nodiscard]] bool isSameVersion(std::string_view one, std::string_view other);

/// The models and the version in a file name without its folder: "B-2230-IR,B-2231-IR_2.900.0.bin". The
/// version may have a leading "v", and may be followed by "_" and any text. Every model contains a digit.
/// Nothing for other names.
[[nodiscard]] std::optional<FirmwareHead> firmwareHeadOfName(std::string_view fileName);

} // namespace sdk
