// Workbook files for the tests, written and read as archives of parts, so that a test can create and compare
// any part.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>

/// The contents of the parts of an archive, by name ("xl/workbook.xml").
using Parts = std::map<QString, QByteArray>;

/// How an archive stores its parts.
enum class Packing
{
    Deflated,  ///< compressed
    Stored,    ///< uncompressed
    Encrypted, ///< compressed, and encrypted with a password
};

/// Writes an archive of these parts to the file `path`, which is replaced if it exists. Returns false on
/// failure.
[[nodiscard]] bool writeArchive(const QString &path, const Parts &parts, Packing packing = Packing::Deflated);

/// All parts of an archive, unpacked. Empty if the archive cannot be opened; a part that cannot be read is
/// missing.
[[nodiscard]] Parts readArchive(const QString &path);

/// One line for each part of an archive, in the order of the file: its name, checksum (CRC-32) and compressed
/// size, separated by spaces. Empty if the archive cannot be opened.
[[nodiscard]] QStringList packedParts(const QString &path);

/// The parts of a workbook with one sheet. `rows` is the XML text of its rows ("<row>..."), `strings` that of
/// its shared strings ("<si>...").
[[nodiscard]] Parts smallWorkbook(const QByteArray &rows, const QByteArray &strings = {});

/// The XML name space of workbooks and sheets.
inline const QByteArray mainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
