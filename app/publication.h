// Publication of the C++ objects to QML.
#pragma once

#include <QString>

#include <memory>

class AccountStore;
class BatchEngine;
class CertificateStore;
class ColourScheme;
class DeviceStore;
class QQmlApplicationEngine;
class SecretVault;

namespace sdk {
class NetLibrary;
}

/// Information about a simulated site. The window displays it.
struct DemoNotice
{
    /// Whether the application uses a simulated site. The user's notes about devices are then stored in a
    /// separate file, because simulated devices may have the MACs of real ones.
    bool isShown = false;
    QString scene = {};   ///< of the site, see sdk::demo::DemoSite::open(); each has its own known devices
    QString account = {}; ///< of most of its devices, as "user / password"; empty if no device has an account
};

/// Sets the context properties of `engine`: the objects (such as "BatchesApi") and values that QML uses by
/// name. Called once, before QML is loaded and after the back ends are registered with CDeviceFactory. Main
/// thread.
///
/// Creates the objects that only QML uses; the engine owns them. `batchEngine`, `colourScheme` and the
/// process-wide objects (CDeviceFactory, CGIConfigManage, CLocalConfig), which this call creates if they are
/// missing, must outlive the engine. `net` may be null: the window then states that no device library is
/// installed. `vault` outlives the engine; null: passwords are in the files. From then on a search keeps the
/// rows of `store` whose devices failed in a batch.
void publishToScene(QQmlApplicationEngine &engine, BatchEngine &batchEngine,
                    const std::shared_ptr<DeviceStore> &store,
                    const std::shared_ptr<CertificateStore> &certificates,
                    const std::shared_ptr<AccountStore> &accounts, ColourScheme &colourScheme,
                    const std::shared_ptr<sdk::NetLibrary> &net, const DemoNotice &demo = {},
                    SecretVault *vault = nullptr);
