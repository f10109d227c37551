// Devices of a simulated site for tests.
#pragma once

#include "sdk/demo/scene/scene.h"

/// An initialised device at `address`, port 37777, with the account "admin" and the password "secret1".
/// `type` is the type that it reports. It responds after 20 ms.
inline sdk::demo::SceneDevice sceneDevice(const QString &mac, const QString &address,
                                          const QString &type = QStringLiteral("IPC"))
{
    sdk::demo::SceneDevice device;
    device.mac = mac;
    device.address = address;
    device.mask = QStringLiteral("255.255.255.0");
    device.gateway = QStringLiteral("192.168.1.1");
    device.port = 37777;
    device.httpPort = 8080;
    device.name = QStringLiteral("东门");
    device.type = type;
    device.model = QStringLiteral("B-2230-IR");
    device.version = QStringLiteral("2.840.1");
    device.serial = QStringLiteral("S1");
    device.accounts = {{QStringLiteral("admin"), QStringLiteral("secret1")}};
    device.latency = std::chrono::milliseconds(20);
    return device;
}
