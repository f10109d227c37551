#pragma once

#include "device/dh/lists/devicelistline.h"
#include "device/dh/logins/rowadding.h"

#include <QSet>

#include <memory>
#include <mutex>

/// The devices of a list, which are added to the table line by line. Thread-safe; lines of one device are
/// added on one thread at a time.
class DeviceListImport
{
public:
    DeviceListImport(RowAdding adding, std::vector<DeviceListLine> lines);

    /// Why the list cannot be imported as a whole, in the user's language; empty when it can. A MAC that
    /// occurs twice makes it doubtful which of the lines tells the truth.
    [[nodiscard]] static QString refusalOf(const std::vector<DeviceListLine> &lines);

    /// The lines with their steps, which keep the import. A step logs in to the device of its line and adds
    /// its row, in the place of the one that the device has already. A device that another line has brought
    /// is not asked again.
    [[nodiscard]] static std::vector<ImportLine> plan(const std::shared_ptr<DeviceListImport> &import);

private:
    [[nodiscard]] StepOutcome add(std::size_t place, const StepControl &control);
    [[nodiscard]] std::optional<StepOutcome> review(const DeviceListLine &line, RowLoginOutcome &login);

    const RowAdding m_adding;
    const std::vector<DeviceListLine> m_lines;
    std::mutex m_mutex;   ///< of what follows
    QSet<QString> m_ways; ///< to the devices that the list has brought: address or P2P ID, ":" and port
    QSet<QString> m_macs; ///< of these devices, in one spelling
};
