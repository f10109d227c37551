#pragma once

#include "device/batch/batch.h"

#include <QHash>
#include <QStringList>
#include <QVariantList>

#include <optional>

class CDeviceFactory;

/// Makes the plans of batches that change addresses, and of those that restore the addresses of an ended
/// batch. In these batches no device gets an address that another device of the batch still has.
///
/// The parameter `plan` has the family, the title, the usual policy and the accounts of the rows. Main
/// thread.
class AddressChanges
{
public:
    /// The plan, or why there is none.
    struct Planned
    {
        /// Without devices if none was given, if the ended batch has none of them, or if refused. Devices
        /// that have the new settings already are included, and get a request as well.
        BatchPlan plan;
        QString refusal; ///< in the user's language; empty if the batch can start
    };

    /// `earlier` are the batches that are kept, see Batches::kept(), oldest first. After a failed change, the
    /// settings before it are known only while its batch is kept; then those of the row are used. Both must
    /// outlive this object. `factory` must also outlive the batches that are started with the plans.
    AddressChanges(CDeviceFactory &factory, const QList<Batch *> &earlier)
        : m_factory(factory), m_earlier(earlier)
    {
    }

    /// See Batches::changeAddresses().
    [[nodiscard]] Planned change(BatchPlan plan, const QStringList &macs, const QStringList &addresses,
                                 const QString &mask, const QString &gateway, bool dhcp) const;

    /// See Batches::addressesToPutBack().
    [[nodiscard]] QVariantList entriesToPutBack(const Batch &batch) const;

    /// See Batches::putAddressesBack(). `batch` has ended.
    [[nodiscard]] Planned putBack(BatchPlan plan, const Batch &batch, const QStringList &identities) const;

private:
    /// `targets` are the new settings by identity.
    [[nodiscard]] Planned planChanges(BatchPlan plan, const QHash<QString, AddressSettings> &targets) const;
    /// The settings before the last address change of a device, if that failed. Its row shows the new address
    /// since then.
    [[nodiscard]] std::optional<AddressSettings> settingsBeforeFailure(const QString &identity) const;

    CDeviceFactory &m_factory;
    const QList<Batch *> &m_earlier;
};
