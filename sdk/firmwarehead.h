// The models and the version of a firmware file, from the lines at its start (its head) or from its name.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sdk {

/// The maximum size of a head in bytes, including the empty line at its end. A longer head is damaged.
inline constexpr std::size_t longestFirmwareHead = 4096;

/// The models and the version that a firmware file states.
struct FirmwareHead
{
    std::vector<std::string> models; ///< of the devices that the file is for; empty if not reported
    std::string version;             ///< "2.900.0", "2.900.0.R"; never empty in a head that was read

    /// True if `models` contains `model`; case and surrounding spaces are ignored. Also true if `models` or
    /// `model` is empty.
    [[nodiscard]] bool fits(std::string_view model) const;
};

/// The result of reading a head.
struct FirmwareHeadReading
{
    enum class Kind
    {
        Unknown, ///< there is no head: the file does not start with "BRELM-FIRMWARE", but may be firmware
        Damaged, ///< the file starts with that word, but the head is invalid or incomplete
        Known,   ///< the head is valid
    };
    Kind kind = Kind::Unknown;
    FirmwareHead head = {}; ///< empty unless `kind` is Known
};

/// Reads the head at the start of `bytes`, the content of a file. The first longestFirmwareHead bytes of the
/// file are sufficient. Up to 64 models of up to 32 characters (letters, digits and "-/.+"), and a version of
/// up to 63 characters that starts with at least two numbers separated by dots, are valid. A head:
///
///     BRELM-FIRMWARE 1
///     model=B-2230-IR,B-2231-IR
///     version=2.900.0
///     (an empty line)
///
/// Other keys are ignored. The key "model" may be missing, the key "version" not. A line may end with CR LF.
/// A value of "version" ends at the first space or comma; the text after it, such as a build date, is
/// ignored, and so is a leading "v".
[[nodiscard]] FirmwareHeadReading readFirmwareHead(std::string_view bytes);

/// True if two versions, from files or devices, are the same firmware: if their numbers ("2.900.0") are
/// equal. Letters after the numbers ("2.900.0.R") are compared, without regard to case, only if both versions
/// have such letters. A leading "v" and the part after a space or comma are ignored. False if one of the
/// versions does not start with a number.
[[nodiscard]] bool isSameVersion(std::string_view one, std::string_view other);

/// The models and the version in a file name without its folder: "B-2230-IR,B-2231-IR_2.900.0.bin". The
/// last dot and the part after it are ignored, unless that part starts with a digit. The version may have a
/// leading "v", and may be followed by "_" and any text. Every model must contain a digit, which
/// distinguishes it from a word. Returns nullopt for a name of any other form.
[[nodiscard]] std::optional<FirmwareHead> firmwareHeadOfName(std::string_view fileName);

} // namespace sdk
