// Firmware files for simulated devices.
#pragma once

#include "tests/files/filecontents.h"
#include "tests/tour/driver/driver.h"

#include <QDir>

inline QString firmwareName(const QString &version)
{
    return QStringLiteral("cameras_%1.bin").arg(version);
}

/// Writes a firmware file for models into `folder` and returns its path.
inline QString writeFirmware(const Driver &driver, const QString &folder, const QString &version,
                             const QStringList &models)
{
    QDir().mkpath(folder);
    const QByteArray content = "BRELM-FIRMWARE 1\nmodel=" + models.join(u',').toLatin1() +
                               "\nversion=" + version.toLatin1() + "\n\n" + QByteArray(100000, '\1');
    const QString path = folder + u'/' + firmwareName(version);
    driver.check(writeFile(path, content), QStringLiteral("the firmware is written"));
    return path;
}
