// Reads and writes device list files; the suffix of the name selects the format. Any thread.
#pragma once

#include "device/dh/lists/devicelistline.h"

/// Writes a list to a file: ".xlsx" as workbook, ".csv" as comma-separated text, ".devlist" encrypted with
/// `passphrase`, any other suffix as XML. The file is replaced atomically. If lines have passwords and
/// the format is not the encrypted one, only the owner can read it. Returns false on failure: an existing
/// file keeps its contents, and the reason is logged. Fails if `passphrase` is shorter than
/// shortestPassphrase for an encrypted list, or not empty for another format.
[[nodiscard]] bool writeDeviceList(const QString &path, const std::vector<DeviceListLine> &lines,
                                   const QString &passphrase = {});

/// A field that an import of the file would not read back unchanged, or a missing address.
struct UnreadableText
{
    std::size_t line = 0; ///< index of its line in the list
    ListColumn column = ListColumn::DeviceCategory;
    /// First character that is lost or makes the field or file invalid. Empty if the field is too long, or if
    /// it is a missing address.
    QString character;
};

/// Maximum number of results of unreadableTexts().
constexpr std::size_t maximumUnreadableTexts = 1000;

/// The fields that an import of a file with this name and these lines would not read back unchanged, in
/// their order, at most maximumUnreadableTexts. Includes missing addresses (of a device that waits for DHCP),
/// since an import rejects such a line. Accesses no file: CSV and XML text is formatted and parsed in memory.
/// Workbooks and encrypted lists keep every character, so that only the rules for fields apply.
[[nodiscard]] std::vector<UnreadableText> unreadableTexts(const QString &fileName,
                                                          const std::vector<DeviceListLine> &lines);

/// Reads a list from a file of at most 128 MiB; the suffix selects the format. `passphrase` is that of an
/// encrypted list; other formats ignore it. Errors are in DeviceListContents::refusal.
[[nodiscard]] DeviceListContents readDeviceList(const QString &path, const QString &passphrase = {});
