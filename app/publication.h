// Publication of objects to QML.
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

/// Information about a simulated site for the window.
struct DemoNotice
{
    bool isShown = false; ///< the application uses a simulated site
    QString account = {}; ///< of most of its devices, as "user / password"; empty if no device has an account
};

/// Sets the context properties of QML. `net` may be null, which the window reports. `batchEngine` and
/// `colourScheme` outlive the engine. A search keeps rows of `store` whose devices failed in a batch.
void publishToScene(QQmlApplicationEngine &engine, BatchEngine &batchEngine,
                    const std::shared_ptr<DeviceStore> &store,
                    const std::shared_ptr<CertificateStore> &certificates,
                    const std::shared_ptr<AccountStore> &accounts, ColourScheme &colourScheme,
                    const std::shared_ptr<sdk::NetLibrary> &net, const DemoNotice &demo = {});
