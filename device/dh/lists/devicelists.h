// Device lists: exporting devices to a file, and logging in to those of a file.
#pragma once

#include "device/registry/backendsignals.h"
#include "device/registry/deviceimport.h"
#include "sdk/sdklibraries.h"

#include <QStringList>
#include <QVariantList>

#include <memory>

class DeviceLogins;
class DeviceStore;
class P2PPorts;

/// The operations of CDeviceBase that have the same names. Lives on the scene's thread.
class DeviceLists
{
public:
    DeviceLists(std::shared_ptr<DeviceStore> store, sdk::SdkLibraries libraries, const DeviceLogins &logins,
                BackEndSignals &backEndSignals);

    /// `folder` may be a "file:///" address; the ending of `fileName` chooses the format. A device that is
    /// not in the table any more is left out; false when none is left, or when the file cannot be written.
    bool exportDevices(const QString &folder, const QStringList &macs, const QString &fileName);

    /// The texts of the last exported list that do not come back when its file is read.
    [[nodiscard]] QVariantList exportFaults() const { return m_exportFaults; }

    /// Any thread, which it blocks for the file. `ports` leads to devices behind NAT, null when nothing does.
    [[nodiscard]] ImportPlan importPlan(const QString &path, P2PPorts *ports) const;

    /// Blocks until every device of the list was asked. Returns why the list was refused as a whole, in the
    /// user's language; an empty text when it was not.
    [[nodiscard]] QString importDevices(const QString &path, P2PPorts *ports, ImportSummary &summary);

    /// The lines of the last imported list that brought no device.
    [[nodiscard]] QVariantList importFailures() const { return m_importFailures; }

private:
    const std::shared_ptr<DeviceStore> m_store;
    const sdk::SdkLibraries m_libraries;
    const DeviceLogins &m_logins;
    BackEndSignals &m_signals;
    QVariantList m_exportFaults;
    QVariantList m_importFailures;
};
