#pragma once

#include "device/dh/internal/devicelistline.h"
#include "device/loginresult.h"
#include "sdk/sdklibraries.h"

#include <QSet>

#include <optional>

class DeviceStore;
class P2PPorts;

/// Why a line of a list brought no device.
struct ImportFailure
{
    LoginResult result = LoginResult::Unknown; ///< Unknown when nothing was asked of the device
    QString reason;                            ///< in the user's language
};

/// Adds the devices of a list to the table, one at a time. Scene's thread only.
class DeviceListImport
{
public:
    DeviceListImport(DeviceStore &store, sdk::SdkLibraries libraries);

    /// Why the list cannot be imported as a whole, in the user's language; empty when it can. A MAC that
    /// occurs twice makes it doubtful which of the lines tells the truth.
    [[nodiscard]] static QString refusalOf(const std::vector<DeviceListLine> &lines);

    /// Logs in to the device of a line and adds its row, in the place of the one that the device has already.
    /// A device that another line of the list has brought is not asked again. Blocks for the waits of the
    /// library. `ports` leads to devices behind NAT, null when nothing does; a port that was opened in vain
    /// is released.
    [[nodiscard]] std::optional<ImportFailure> add(const DeviceListLine &line, P2PPorts *ports);

private:
    struct Target;

    [[nodiscard]] std::optional<ImportFailure> logIn(const DeviceListLine &line, const Target &target,
                                                     int port, int &webPort);

    DeviceStore &m_store;
    const sdk::SdkLibraries m_libraries;
    QSet<QString> m_ways; ///< to the devices that the list has brought: address or P2P ID, ":" and port
    QSet<QString> m_macs; ///< of these devices, in one spelling
};
