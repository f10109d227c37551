// A device list as its files have it: lines of 19 texts.
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
    IPAddress, ///< or the P2P ID
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

/// What a column is called.
struct ListColumnName
{
    QStringView header;        ///< in spreadsheets and comma-separated text
    QLatin1StringView element; ///< in XML
};

/// The names of all columns, in their order.
[[nodiscard]] const std::array<ListColumnName, listColumnCount> &listColumnNames();

/// Words that stand in the cells of a list, whatever the user's language.
namespace ListWord {
inline constexpr QLatin1StringView encoder("Encoder");
inline constexpr QLatin1StringView traffic("Traffic");
inline constexpr QLatin1StringView videoWall("Video Wall Control");
inline constexpr QLatin1StringView videoWallType("NVD");
inline constexpr QLatin1StringView general("General");
inline constexpr QLatin1StringView serviceAddress("127.0.0.1");
inline constexpr QLatin1StringView byAddress("IpAddress");
inline constexpr QLatin1StringView byP2P("P2P");
inline constexpr QLatin1StringView initialised("INITIALIZED");
inline constexpr QLatin1StringView notInitialised("NOT INITIALIZED");
} // namespace ListWord

/// One device of a list.
struct DeviceListLine
{
    int number = 0;                ///< of the line or row in its file, counted from 1
    bool hasTooManyFields = false; ///< so that nobody knows which is which, and none is kept
    std::array<QString, listColumnCount> values;

    [[nodiscard]] QString &operator[](ListColumn column)
    {
        return values.at(static_cast<std::size_t>(column));
    }
    [[nodiscard]] const QString &operator[](ListColumn column) const
    {
        return values.at(static_cast<std::size_t>(column));
    }
};

/// A longer text is no device's; readers keep one character more, so that it shows.
inline constexpr qsizetype maximumListText = 256;

/// What a list file holds.
struct DeviceListContents
{
    static constexpr std::size_t maximumLines = 100'000;

    std::vector<DeviceListLine> lines;
    QString refusal; ///< why the file cannot be used, in the user's language; empty when it can
    QString detail;  ///< what a log should say of that; may be empty

    /// Takes the next line. Returns false, with a refusal, when there are too many.
    bool add(DeviceListLine line);

    /// Returns false, for its caller to return.
    bool refuse(const QString &reason);
};

/// Why no device has such a text: it is too long, or holds control characters, which would break the lines of
/// tables. In the user's language; empty when it may be a device's.
[[nodiscard]] QString faultOfText(const QString &text);

/// A text of a file as a line keeps it: not longer than shows that it is too long, and without the blanks
/// around it, which only a password can mean.
[[nodiscard]] QString listText(ListColumn column, QStringView text);
