// Look-up of devices of the simulated site.
#pragma once

#include "sdk/demo/demosite.h"

#include <QString>

/// The MAC of the device with this address and port ("192.168.1.101:8800"); empty if there is none.
inline QString macOf(const sdk::demo::DemoSite &site, const QString &ipport)
{
    QString mac;
    site.forEachDevice([&](const sdk::demo::SceneDevice &device) {
        if (QStringLiteral("%1:%2").arg(device.address).arg(device.port) == ipport)
            mac = device.mac;
    });
    return mac;
}
