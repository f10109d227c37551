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

    UpgradeTools::Result refusal = UpgradeTools::None; ///< why it cannot be sent; None: it can
    std::optional<sdk::FirmwareHead> head;             ///< of header or file name; nullopt: unknown

    /// Whether the file is for this model. True if either model is unknown.
    [[nodiscard]] bool fits(const QString &model) const;

    /// Why the file cannot be sent to a device of this model; None if it can.
    [[nodiscard]] UpgradeTools::Result refusalFor(const QString &model) const;
};

/// Checks a file; reads its header only. Any thread.
[[nodiscard]] FirmwareFile checkFirmwareFile(const QString &path);

/// Cache of checkFirmwareFile(): checks each path once. Not thread-safe.
class FirmwareFiles
{
public:
    [[nodiscard]] const FirmwareFile &at(const QString &path);

private:
    QHash<QString, FirmwareFile> m_files; ///< by path
};
