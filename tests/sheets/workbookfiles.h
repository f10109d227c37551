// Workbook files for the tests, written and read by parts.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>

using Parts = std::map<QString, QByteArray>;

/// The storage of the parts of an archive.
enum class Packing
{
    Deflated,
    Stored,
    Encrypted,
};

/// Writes an archive of these parts. Returns false on failure.
[[nodiscard]] bool writeArchive(const QString &path, const Parts &parts, Packing packing = Packing::Deflated);

/// All parts of an archive, unpacked. Empty on failure.
[[nodiscard]] Parts readArchive(const QString &path);

/// The checksums and compressed sizes of all parts of an archive, one line each.
[[nodiscard]] QStringList packedParts(const QString &path);

/// A workbook with one sheet whose rows are `rows`, with `strings` in its list of shared strings.
[[nodiscard]] Parts smallWorkbook(const QByteArray &rows, const QByteArray &strings = {});

inline const QByteArray mainNamespace = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
