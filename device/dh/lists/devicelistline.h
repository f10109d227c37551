// The lines of a device list, independent of the file format.
#pragma once

#include <QString>

#include <array>
#include <vector>

/// The columns of a device list, in the order of its files.
enum class ListColumn : int
{
    DeviceCategory,
    DeviceType,
    AccessProtocol,
    AddMode,
    DeviceName,
    IPAddress, ///< IP address, host name or P2P ID
    DevicePort,
    Organization,
    ServiceIP,
    Username,
    Password,
    Model,
    Mac,
    SerialNumber,
    Version,
    SubnetMask,
    Gateway,
    InitStatus,
    Result,
};

inline constexpr int listColumnCount = 19;
static_assert(static_cast<int>(ListColumn::Result) == listColumnCount - 1);

/// The names of a column in files.
struct ListColumnName
{
    QStringView header;        ///< in workbooks and comma-separated text
    QLatin1StringView element; ///< in XML
};

/// The names of all columns, in their order.
[[nodiscard]] const std::array<ListColumnName, listColumnCount> &listColumnNames();

/// Fixed words in the fields of a list, independent of the user's language.
namespace ListWord {
// DeviceCategory; `traffic` is also the DeviceType of that category, `videoWallType` that of `videoWall`.
inline constexpr QLatin1StringView encoder("Encoder"); ///< all other devices
inline constexpr QLatin1StringView traffic("Traffic");
inline constexpr QLatin1StringView videoWall("Video Wall Control");
inline constexpr QLatin1StringView videoWallType("NVD");
inline constexpr QLatin1StringView general("General");          ///< AccessProtocol
inline constexpr QLatin1StringView serviceAddress("127.0.0.1"); ///< ServiceIP
// AddMode
inline constexpr QLatin1StringView byAddress("IpAddress");
inline constexpr QLatin1StringView byP2P("P2P");
// InitStatus
inline constexpr QLatin1StringView initialised("INITIALIZED");
inline constexpr QLatin1StringView notInitialised("NOT INITIALIZED");
} // namespace ListWord

/// One device of a list file. The values are as in the file: they may be too long or invalid.
struct DeviceListLine
{
    int number = 0;                ///< number of the line, row or device in the file, from 1
    bool hasTooManyFields = false; ///< more fields than headers: the fields are ambiguous and not kept
    std::array<QString, listColumnCount> values; ///< by ListColumn; empty for a missing field

    [[nodiscard]] QString &operator[](ListColumn column)
    {
        return values.at(static_cast<std::size_t>(column));
    }
    [[nodiscard]] const QString &operator[](ListColumn column) const
    {
        return values.at(static_cast<std::size_t>(column));
    }
};

/// Maximum length of a field in characters. Readers keep one extra character so that over-long input is
/// detected.
inline constexpr qsizetype maximumListText = 256;

/// Result of reading a list file.
struct DeviceListContents
{
    static constexpr std::size_t maximumLines = 100'000; ///< a file with more lines is refused

    std::vector<DeviceListLine> lines;
    QString refusal; ///< why the file cannot be used, in the user's language; empty on success
    QString detail;  ///< technical reason for the log; may be empty
    /// The list is refused because its passphrase is missing, or does not fit its contents: another
    /// passphrase may.
    bool isPassphraseRefused = false;

    /// Appends a line. If there are too many, clears the lines, sets `refusal` and returns false.
    bool add(DeviceListLine line);

    /// Clears the lines and sets `refusal`. Always returns false, as a return value for the caller.
    bool refuse(const QString &reason);
};

/// Why a field is invalid, in the user's language: longer than maximumListText, or with control characters,
/// which would break table rows. Empty if it is valid.
[[nodiscard]] QString faultOfText(const QString &text);

/// Converts a field of a file for a DeviceListLine: truncated to maximumListText + 1 characters, and without
/// surrounding spaces, except for the password, where spaces are significant.
[[nodiscard]] QString listText(ListColumn column, QStringView text);
