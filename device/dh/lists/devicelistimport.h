#pragma once

#include "device/dh/lists/devicelistline.h"
#include "device/dh/logins/rowadding.h"

#include <QSet>

#include <memory>
#include <mutex>

/// Adds the devices of a list to the device store, line by line, by a login to each. Thread-safe; the caller
/// must not run two lines of one device in parallel.
class DeviceListImport
{
public:
    /// The lines must not have a refusalOf(). The store of `adding` must outlive this object and its steps.
    DeviceListImport(RowAdding adding, std::vector<DeviceListLine> lines);

    /// Why the list cannot be imported, in the user's language; empty if it can. A list with a duplicate MAC
    /// is refused, since one of the lines must be wrong. Invalid lines are no reason: their steps fail.
    [[nodiscard]] static QString refusalOf(const std::vector<DeviceListLine> &lines);

    /// The lines with their steps, which share ownership of the import. A step logs in to the device of its
    /// line and adds its row, completed with the fields of the line (see completeFrom()), replacing an
    /// existing row of the device. A device that reports no MAC does not replace the row with the MAC of the
    /// line. The step of an invalid line returns unusableLine without a request. If another line of this
    /// import has added the device, the result is AlreadyListed: without a request for the same address and
    /// port, after the login for the same MAC.
    [[nodiscard]] static std::vector<ImportLine> plan(const std::shared_ptr<DeviceListImport> &import);

private:
    [[nodiscard]] StepOutcome add(std::size_t index, const StepControl &control);
    [[nodiscard]] std::optional<StepOutcome> review(const DeviceListLine &line, RowLoginOutcome &login);

    const RowAdding m_adding;
    const std::vector<DeviceListLine> m_lines;
    std::mutex m_mutex;           ///< guards m_addedTargets and m_macs
    QSet<QString> m_addedTargets; ///< added devices: address or P2P ID, ":" and port
    QSet<QString> m_macs;         ///< normalised MACs of the added devices
};
