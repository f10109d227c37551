// Adding devices to the table.
#pragma once

#include "device/dh/logins/rowlogin.h"
#include "device/registry/deviceimport.h"

#include <functional>
#include <optional>

class DeviceStore;
class P2PPorts;

/// Logs in to devices, by their address or through a local port, and puts their rows into the table. Works on
/// any thread, but on one device on one thread at a time. Blocks for the waits of the libraries.
class RowAdding
{
public:
    /// Looks at a login that went well, and may change its row before it is kept. What it returns is the
    /// outcome then, and no row is kept.
    using Review = std::function<std::optional<StepOutcome>(RowLoginOutcome &login)>;

    /// `store` and `ports` live longer than this. `ports` leads to devices behind NAT, null when nothing
    /// does.
    RowAdding(DeviceStore &store, sdk::SdkLibraries libraries, P2PPorts *ports);

    [[nodiscard]] DeviceStore &store() const { return m_store; }

    /// The row takes the place of the one that the device has already. A local port that was opened in vain
    /// is released.
    [[nodiscard]] StepOutcome add(const DeviceToAdd &device, const StepControl &control,
                                  const Review &review) const;

    /// The same without a review, but not for an address and port that a row has already.
    [[nodiscard]] StepOutcome addNew(const DeviceToAdd &device, const StepControl &control) const;

private:
    [[nodiscard]] StepOutcome addThroughTunnel(const DeviceToAdd &device, const StepControl &control,
                                               const Review &review) const;
    /// Logs in at `port`, which with P2P is the local end of the tunnel. Sets the port of the device's web
    /// page.
    [[nodiscard]] StepOutcome logIn(const DeviceToAdd &device, int port, const StepControl &control,
                                    const Review &review, int &webPort) const;

    DeviceStore &m_store;
    const sdk::SdkLibraries m_libraries;
    P2PPorts *const m_ports;
};
