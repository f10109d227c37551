// Checks of a firmware file before it is sent.
#pragma once

#include "device/registry/upgradetools.h"
#include "sdk/firmwarehead.h"

#include <QHash>
#include <QString>

#include <optional>

/// Result of checking a firmware file.
struct FirmwareFile
{
    /// Maximum file size in bytes; larger files are refused.
    static constexpr qint64 largest = qint64(1) << 30;

    UpgradeTools::Result refusal = UpgradeTools::None; ///< why it cannot be sent to any device; None: it can
    std::optional<sdk::FirmwareHead> head; ///< model and version, from header or file name; nullopt: unknown

    /// Whether the file is for this model. True if either model is unknown. Does not consider `refusal`.
    [[nodiscard]] bool fits(const QString &model) const;

    /// Why the file cannot be sent to a device of this model: `refusal`, or WrongModel. None if it can.
    [[nodiscard]] UpgradeTools::Result refusalFor(const QString &model) const;
};

/// Checks a file (local path); reads its header only. A missing, unreadable, empty, too large or damaged
/// file has a refusal, and an empty path NoFile. Any thread.
[[nodiscard]] FirmwareFile checkFirmwareFile(const QString &path);

/// Cache of checkFirmwareFile() for one operation: checks each path once, at its first use. Not thread-safe.
class FirmwareFiles
{
public:
    /// The reference is valid until the next call.
    [[nodiscard]] const FirmwareFile &at(const QString &path);

private:
    QHash<QString, FirmwareFile> m_files; ///< by path
};
