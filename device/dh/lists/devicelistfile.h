// Reads and writes device list files; the suffix of the name selects the format. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// Writes a list to a file: ".xlsx" as workbook, ".csv" as comma-separated text, any other suffix as XML. The
/// file is replaced atomically. On failure it is unchanged, the reason is logged, and false is returned.
[[nodiscard]] bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines);

/// A field that an import of the file would not read back unchanged.
struct UnreadableText
{
    std::size_t line = 0; ///< index of its line in the list
    ListColumn column = ListColumn::DeviceCategory;
    QString character; ///< first character that is lost or makes the field or file invalid; empty if the
                       ///< field is too long or a missing address
};

/// Maximum number of results of unreadableTexts().
constexpr std::size_t maximumUnreadableTexts = 1000;

/// The fields that an import of a file with this name would not read back unchanged. Includes missing
/// addresses (device without an address from DHCP), since an import rejects such a line. CSV and XML text is
/// read by the reader of the format: first all lines together, then line by line if that differs. Workbooks
/// keep every character; only the rules for fields are applied.
[[nodiscard]] std::vector<UnreadableText> unreadableTexts(const QString &fileName,
                                                          const std::vector<DeviceListLine> &lines);

/// Reads a list from a file of at most 128 MiB; the suffix selects the format. Errors are in
/// DeviceListContents::refusal.
[[nodiscard]] DeviceListContents readDeviceList(const QString &path);
