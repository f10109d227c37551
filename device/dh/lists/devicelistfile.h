// Device lists as files, in the format that their names say.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// Writes the list to a file: ".xlsx" a workbook, ".csv" comma-separated text, anything else XML. The file is
/// replaced as a whole; on failure it is as it was, the log says why, and false is returned.
[[nodiscard]] bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines);

/// A text of a list that does not come back when its file is read.
struct UnreadableText
{
    std::size_t line = 0; ///< the place of its line in the list
    ListColumn column = ListColumn::DeviceCategory;
    QString character; ///< the first that is lost or breaks the file; empty when the text is too long,
                       ///< or is the address and missing
};

constexpr std::size_t maximumUnreadableTexts = 1000;

/// The texts that would not come back from a file of that name, at most maximumUnreadableTexts. An address
/// that is missing, as while DHCP has given none, counts as one: the import would not take the line. The
/// lines are taken through the reader of the format, once as a whole, and one by one when the whole does not
/// come back.
[[nodiscard]] std::vector<UnreadableText> unreadableTexts(const QString &fileName,
                                                          const std::vector<DeviceListLine> &lines);

/// Reads a list from a file of at most 128 MiB, in the same formats.
[[nodiscard]] DeviceListContents readDeviceList(const QString &path);
