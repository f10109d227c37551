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

/// The objects with which the window and the commands work with devices: the libraries, the stores of
/// certificates and accounts, the rows, and the back ends, which are registered with CDeviceFactory. The
/// factory must be deleted before this object. Main thread.
///
/// The libraries are those of a simulated site, or the closed libraries of "devicelibraries.txt", or without
/// that file the open ones. For a simulated site, certificates and accounts are in memory only.
class DeviceSetup
{
public:
    struct Options
    {
        bool isDemo = false;   ///< work on a simulated site
        QString scene;         ///< of the site, see sdk::demo::DemoSite::open()
        QString programFolder; ///< contains "devicelibraries.txt", if there are closed libraries
        QString storeFolder;   ///< of "certificates.json" and "accounts.json"
    };

    /// The reason why the libraries cannot be used.
    struct Problem
    {
        bool isSite = false; ///< true: `text` is about the simulated site and in English
        QString text;        ///< otherwise in the user's language
    };

    /// Opens nothing yet.
    explicit DeviceSetup(Options options);

    /// Chooses the libraries and creates the stores. Called once, before all other functions. Returns nullopt
    /// on success. After a problem, only the destructor may be called.
    [[nodiscard]] std::optional<Problem> open();

    /// Sets the certificate handler of `transport`, and on a simulated site its proxy, through which all
    /// requests reach simulated devices only. This object must outlive the requests.
    void prepare(HttpTransport &transport) const;

    /// Registers the back ends with the factory; called before the factory is first used. `searchSettings` is
    /// called on the main thread at each start of a search.
    void registerBackEnds(const std::function<SearchSettings()> &searchSettings,
                          const UpgradeLimits &upgradeLimits) const;

    // The objects that open() has created; empty before.

    /// The libraries. A library that is not available is null.
    [[nodiscard]] const sdk::SdkLibraries &libraries() const { return m_libraries; }
    [[nodiscard]] const std::shared_ptr<CertificateStore> &certificates() const { return m_certificates; }
    [[nodiscard]] const std::shared_ptr<AccountStore> &accounts() const { return m_accounts; }
    [[nodiscard]] const std::shared_ptr<BatchEngine> &batchEngine() const { return m_batchEngine; }
    [[nodiscard]] const std::shared_ptr<DeviceStore> &deviceStore() const { return m_deviceStore; }

    /// The account of most devices of the simulated site; nullopt without a site or an account.
    [[nodiscard]] const std::optional<DeviceAccount> &siteAccount() const { return m_siteAccount; }

private:
    [[nodiscard]] std::optional<Problem> openSite();
    void createStores();

    const Options m_options;
    std::shared_ptr<CertificateStore> m_certificates; ///< outlives the libraries, which call it
    std::shared_ptr<AccountStore> m_accounts;
    sdk::SdkLibraries m_libraries;
    QString m_proxy; ///< of the simulated site
    std::optional<DeviceAccount> m_siteAccount;
    std::shared_ptr<BatchEngine> m_batchEngine;
    std::shared_ptr<DeviceStore> m_deviceStore;
};
