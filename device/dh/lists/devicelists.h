// Exports devices to a list file, and imports the devices of a list file.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/deviceimport.h"
#include "device/registry/listprotection.h"
#include "sdk/sdklibraries.h"

#include <QStringList>
#include <QVariantList>

#include <memory>

class DeviceLogins;
class DeviceStore;
class P2PPorts;

/// Exports devices to files and imports them by a login to each. Lives on the main thread; functions for
/// other threads say so.
class DeviceLists
{
public:
    /// The referenced objects must outlive this object.
    DeviceLists(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                BackEndSignals &backEndSignals);

    /// Writes the devices with these row names to a file in `folder` (a path or "file:///" URL), replacing
    /// an existing file. The suffix of `fileName` selects the format: "xlsx", "csv", "devlist" for an
    /// encrypted list, otherwise XML. Writes the passwords of rows and of the default account, unless
    /// `protection` leaves them out, but not those of stored accounts. Skips devices that are no longer in
    /// the list. Returns false if none is left, if the file cannot be written, or if the passphrase does not
    /// fit the format; an existing file keeps its contents then.
    bool exportDevices(const QString &folder, const QStringList &macs, const QString &fileName,
                       const ListProtection &protection = {});

    /// Fields of the last exported list that an import would not read back unchanged, and missing addresses:
    /// maps with the keys of ExportFaultKey, at most 1000. Empty after a failed export.
    [[nodiscard]] QVariantList exportFaults() const { return m_exportFaults; }

    /// Reads a list file and makes its import; adds no device. The reason of a refused list is in the
    /// result. `path` may be a "file:///" URL. Any thread; blocks for the file. `ports` opens local ports to
    /// devices behind NAT; may be null, then the steps of such devices fail. `passphrase` is that of an
    /// encrypted list. The store must outlive the steps.
    [[nodiscard]] ImportPlan importPlan(const QString &path, const QString &passphrase,
                                        const std::shared_ptr<P2PPorts> &ports) const;

    /// Logs in to all devices of a list file, adds their rows and blocks until that is done. Sets `summary`,
    /// emits signalCDeviceImportProgress after each line, and signalCDeviceAddSingleDeviceToTable at the end
    /// if a device was added. Returns why the list was refused as a whole, in the user's language; otherwise
    /// empty, also if lines failed. An encrypted list is refused: only importPlan() decrypts.
    [[nodiscard]] QString importDevices(const QString &path, const std::shared_ptr<P2PPorts> &ports,
                                        ImportSummary &summary);

    /// Lines of the last importDevices() that failed, in the order of the file, as maps made by
    /// importFailure().
    [[nodiscard]] QVariantList importFailures() const { return m_importFailures; }

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    BackEndSignals &m_signals;
    QVariantList m_exportFaults;
    QVariantList m_importFailures;
};
