// Device libraries, stores and back ends of the process.
#pragma once

#include "cgi/httptransport.h"
#include "device/accounts/certificatestore.h"
#include "device/batch/batchengine.h"
#include "device/dh/devicedh.h"
#include "device/store/devicestore.h"
#include "favourites/accountstore.h"
#include "sdk/sdklibraries.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

/// The objects with which the window and the commands work with devices: the device libraries, the stores of
/// certificates and accounts, the device list, and the back ends (the implementations of the operations, by
/// device family), which are registered with CDeviceFactory. The process-wide factory must be deleted before
/// this object. Main thread.
///
/// The libraries are those of a simulated site; otherwise the closed libraries that the file
/// "devicelibraries.txt" lists; without that file the open ones, which have no port agent for devices behind
/// NAT. For a simulated site, certificates and accounts are in memory only.
class DeviceSetup
{
public:
    struct Options
    {
        bool isDemo = false;   ///< work on a simulated site
        QString scene;         ///< its devices: name of a built-in scene, "fleet:N", or path of a scene file
        QString programFolder; ///< contains "devicelibraries.txt", if there are closed libraries
        QString storeFolder;   ///< of "certificates.json" and "accounts.json"; not used with a site
    };

    /// The reason why the libraries cannot be used.
    struct Problem
    {
        bool isSite = false; ///< true: the simulated site; false: the closed libraries
        QString text;        ///< the reason; in English for the site, otherwise in the user's language
    };

    /// Opens nothing yet.
    explicit DeviceSetup(Options options);

    /// Chooses the libraries and creates the stores. Called once, before all other functions. Returns nullopt
    /// on success. After a problem, only the destructor may be called.
    [[nodiscard]] std::optional<Problem> open();

    /// Prepares the transport of commands over HTTP: sets its certificate handler, and on a simulated site
    /// its proxy, so that no request reaches a real device. This object must outlive the requests.
    void prepare(HttpTransport &transport) const;

    /// Registers the back ends of all families with the factory; called before the factory is first used.
    /// `searchSettings` is called on the main thread at each start of a search. `upgradeLimits` are the
    /// number of parallel upgrades and their timeouts.
    void registerBackEnds(const std::function<SearchSettings()> &searchSettings,
                          const UpgradeLimits &upgradeLimits) const;

    // The objects that open() has created; null before.

    /// The device libraries. A library that is not available is null.
    [[nodiscard]] const sdk::SdkLibraries &libraries() const { return m_libraries; }
    [[nodiscard]] const std::shared_ptr<CertificateStore> &certificates() const { return m_certificates; }
    [[nodiscard]] const std::shared_ptr<AccountStore> &accounts() const { return m_accounts; }
    [[nodiscard]] const std::shared_ptr<BatchEngine> &batchEngine() const { return m_batchEngine; }
    [[nodiscard]] const std::shared_ptr<DeviceStore> &deviceStore() const { return m_deviceStore; }

    /// The account that most devices of the simulated site have; nullopt without a site, and if none of its
    /// devices has an account.
    [[nodiscard]] const std::optional<DeviceAccount> &siteAccount() const { return m_siteAccount; }

private:
    [[nodiscard]] std::optional<Problem> openSite();
    void createStores();

    const Options m_options;
    std::shared_ptr<CertificateStore> m_certificates; ///< outlives the libraries, which call it
    std::shared_ptr<AccountStore> m_accounts;
    sdk::SdkLibraries m_libraries;
    QString m_proxy; ///< URL of the HTTP proxy of the simulated site; empty without a site
    std::optional<DeviceAccount> m_siteAccount;
    std::shared_ptr<BatchEngine> m_batchEngine;
    std::shared_ptr<DeviceStore> m_deviceStore;
};
