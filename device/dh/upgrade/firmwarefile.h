// Looking at a firmware file before anything is sent.
#pragma once

#include "device/registry/upgradetools.h"
#include "sdk/firmwarehead.h"

#include <QHash>
#include <QString>

#include <optional>

struct FirmwareFile
{
    /// Larger files are refused.
    static constexpr qint64 largest = qint64(1) << 30;

    UpgradeTools::Result refusal = UpgradeTools::None; ///< None: it can be sent
    std::optional<sdk::FirmwareHead> head;             ///< what its head or else its name tells

    /// Whether a device with this model may get it; also when one of both does not tell.
    [[nodiscard]] bool fits(const QString &model) const;

    /// Why a device with this model does not get it; None when it does.
    [[nodiscard]] UpgradeTools::Result refusalFor(const QString &model) const;
};

[[nodiscard]] FirmwareFile firmwareFile(const QString &path);

/// Looks at files, at each of them once.
class FirmwareFiles
{
public:
    [[nodiscard]] const FirmwareFile &at(const QString &path);

private:
    QHash<QString, FirmwareFile> m_files; ///< by path
};
