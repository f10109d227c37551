// The properties that every device list has after it was read from a file, also from a damaged one.
#pragma once

#include "device/dh/lists/devicelistimport.h"
#include "device/dh/lists/devicelistvalues.h"

namespace fuzz {

/// Processes a list as far as possible without a device: converts its lines to rows and back, and checks them
/// as for an import. Ends the process if a refused list has lines, or if a text is longer than the readers
/// keep.
inline void useList(const DeviceListContents &contents)
{
    if (!contents.refusal.isEmpty() && !contents.lines.empty())
        qFatal("a refused list has lines");
    for (const DeviceListLine &line : contents.lines) {
        for (const QString &value : line.values) {
            if (value.size() > maximumListText + 1)
                qFatal("a text exceeds the limit");
        }
        QJsonObject row;
        completeFrom(row, line, false);
        static_cast<void>(listLineOf({.row = row, .record = {}}, {}));
    }
    static_cast<void>(DeviceListImport::refusalOf(contents.lines));
}

} // namespace fuzz
