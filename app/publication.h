// What start-up hands to the scene.
#pragma once

#include <QString>

#include <memory>

class AccountStore;
class BatchEngine;
class CertificateStore;
class ColourScheme;
class DeviceStore;
class QQmlApplicationEngine;

namespace sdk {
class NetLibrary;
}

/// What the window says of a simulated site.
struct DemoNotice
{
    bool isShown = false; ///< the program works on one
    QString account = {}; ///< of most of its devices, as "user / password"; empty when none has one
};

/// Sets the context properties of the scene. `net` fills the network role: without it the scene says so.
/// `batchEngine` runs the scene's batches, which keep rows in `store`; it and `colourScheme` outlive the
/// scene.
void publishToScene(QQmlApplicationEngine &engine, BatchEngine &batchEngine,
                    const std::shared_ptr<DeviceStore> &store,
                    const std::shared_ptr<CertificateStore> &certificates,
                    const std::shared_ptr<AccountStore> &accounts, ColourScheme &colourScheme,
                    const std::shared_ptr<sdk::NetLibrary> &net, const DemoNotice &demo = {});
