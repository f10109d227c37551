#pragma once

#include "device/devicebase.h"
#include "device/devicesearch.h"
#include "sdk/p2pagentlibrary.h"
#include "sdk/sdklibraries.h"

#include <functional>
#include <memory>
#include <vector>

struct DeviceListLine;

/// What a search reads from the local configuration.
struct SearchSettings
{
    bool localDomain = true; ///< search the local segment
};

/// The family "dh": the one complete back end. Each group of its operations stands in a file of its own.
class CDeviceDH : public CDeviceBase
{
    Q_OBJECT
public:
    /// `searchSettings` is called on the scene's thread at each start of a search.
    CDeviceDH(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries,
              std::function<SearchSettings()> searchSettings);

    /// Ends running searches and the session, and releases the network library.
    ~CDeviceDH() override;

    /// Takes the port agent's events, on a thread of the agent: logs them. Of a tunnel that broke the user
    /// learns: the device's row gets the result of a network failure, and signalCDeviceTunnelBroken is
    /// emitted, both on the thread of the back end that was made last. So does he of the loss of the service,
    /// which has no device.
    static void agentMessage(sdk::P2PAgentEvent event, const char *deviceId, std::int32_t localPort,
                             void *user);

    // Search: devicedhsearch.cpp
    void startSearch() override;
    void setSearchByIPInfo(quint32 beginip, quint32 endip) override;
    QVariantList filterData(const QString &filtertype, const QString &searchtext) override;
    QVariantList filterDataIPV6(const QString &filtertype, const QString &searchtext) override;

    // Rows and their logins: devicedhrows.cpp
    int getLoginDevice(const QString &address, const QString &account, const QString &password,
                       const QString &port, int loginType, const QString &devicePort) override;
    void setDefaultAccount(const QString &account, const QString &password) override;
    bool updataDeviceInfo(const QString &key, const QVariant &newValue, const QString &mac,
                          const QString &ipport) override;
    QVariantMap getDeviceInfo(const QString &ipport) override;
    QVariantMap getDeviceDetail(const QString &mac) override;
    QVariantMap getDeviceDetailByAddress(const QString &ipport) override;
    /// `mac` is an address and port when `ipvision` is "IPV6", whose rows have no MAC.
    void setDeleteDevice(const QString &mac, const QString &ipvision) override;
    /// The keys of `macs` name the rows, as `mac` does in setDeleteDevice().
    void setBatchDeleteDevice(const QVariantMap &macs, const QString &ipversion) override;

    // The current session: devicedhsession.cpp
    int findAndLoginDevice(const QString &ipport, const QString &account, const QString &password) override;

    // Requests to devices that a search has found: devicedhrequests.cpp
    void setInitAccount(const QString &mac, const QString &account, const QString &password) override;
    void modifyIP(const QString &mac, const QString &newip, const QString &newsubmask,
                  const QString &newgateway, bool dhcpON) override;

    // Device lists: devicedhlists.cpp

    /// `folder` may be a "file:///" address; the ending of `fileName` chooses the format. A device that is
    /// not in the table any more is left out; false when none is left, or when the file cannot be written.
    bool exportDevice(const QString &folder, const QStringList &macs, const QString &fileName) override;

    /// Blocks until every device of the list was asked; between two devices the event loop runs at times,
    /// without the user's input: whoever calls holds this object, as the factory does. `path` may be a
    /// "file:///" address. False when the list was refused as a whole, and when another one is being
    /// imported.
    bool importDevice(const QString &path, ImportSummary &summary) override;
    QVariantList importFailures() override;
    QString importError() override;

private:
    /// The one login that configuration, live view and snapshots use.
    struct Session
    {
        std::int32_t loginKind = 0;
        std::int64_t handle = 0; ///< 0 while there is none
        QString ipport;
        QString account;
        QString password;
    };

    void endSession();
    static void tellAgentListener(const QString &deviceId, int localPort);
    void noteBrokenTunnel(const QString &deviceId, int localPort);
    void importLines(const std::vector<DeviceListLine> &lines, ImportSummary &summary);

    const sdk::SdkLibraries m_libraries;
    const std::function<SearchSettings()> m_searchSettings;
    std::unique_ptr<DeviceSearch> m_search;
    Session m_session;
    QString m_defaultAccount;
    QString m_defaultPassword;
    bool m_isImporting = false;
    QVariantList m_importFailures;
    QString m_importError;
};
