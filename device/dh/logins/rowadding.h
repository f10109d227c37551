// Adds devices to the device store.
#pragma once

#include "device/dh/logins/rowlogin.h"
#include "device/registry/deviceimport.h"

#include <functional>
#include <memory>
#include <optional>

class DeviceStore;
class P2PPorts;

/// Logs in to devices, by address or through a local port, and stores their rows. Thread-safe, but the same
/// device must not be added by two calls at the same time. Blocks for the timeouts of the libraries.
class RowAdding
{
public:
    /// Called after a successful login, on its thread; may change the row. If it returns an outcome, that is
    /// the result of the call and no row is stored.
    using Review = std::function<std::optional<StepOutcome>(RowLoginOutcome &login)>;

    /// `store` must outlive this object. `ports` opens local ports to devices behind NAT; null: such devices
    /// cannot be added (NetworkFailure).
    RowAdding(DeviceStore &store, sdk::SdkLibraries libraries, std::shared_ptr<P2PPorts> ports);

    [[nodiscard]] DeviceStore &store() const { return m_store; }

    /// Logs in, logs out and stores the row, which replaces an existing row of the device. The result is a
    /// LoginResult, or that of `review`, which may be empty. After a failure no row has changed. The local
    /// port of a P2P device stays open if a row or another user needs it, otherwise it is closed.
    [[nodiscard]] StepOutcome add(const DeviceToAdd &device, const StepControl &control,
                                  const Review &review) const;

    /// Same without a review. AlreadyListed, without a request, if a row has this address and port. This
    /// check is not made for a P2P device: its row is replaced.
    [[nodiscard]] StepOutcome addNew(const DeviceToAdd &device, const StepControl &control) const;

private:
    [[nodiscard]] StepOutcome addThroughTunnel(const DeviceToAdd &device, const StepControl &control,
                                               const Review &review) const;
    /// Logs in at `port` (with P2P the local end of the tunnel) and stores the row. Sets `webPort` to the
    /// port of the device's web page on success.
    [[nodiscard]] StepOutcome logIn(const DeviceToAdd &device, int port, const StepControl &control,
                                    const Review &review, int &webPort) const;

    DeviceStore &m_store;
    const sdk::SdkLibraries m_libraries;
    const std::shared_ptr<P2PPorts> m_ports;
};
