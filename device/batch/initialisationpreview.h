// Preview of a batch of initialisations.
#pragma once

#include "device/batch/batchpreview.h"

/// The devices that the user has checked for initialisation: devices that are not initialised first, then
/// those that are. A device is skipped if it is initialised, is being upgraded, or has neither MAC nor UUID.
/// Additional keys of a row: "type" and "vision" (firmware version). The devices are reached by MAC or UUID,
/// so a shared address is not a conflict. Lives on the main thread.
class InitialisationPreview : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(int deviceCount READ deviceCount NOTIFY judged)
public:
    explicit InitialisationPreview(QObject *parent = nullptr) : BatchPreview(parent) {}

    /// Sets the devices from rows (maps) of a DeviceTableModel, all of them checked.
    Q_INVOKABLE void setTicked(const QVariantList &rows);

    /// Number of checked devices that will be initialised, that is, not skipped.
    [[nodiscard]] int deviceCount() const { return checkedCount() - skippedCount(); }
    /// Their identities (names of rows), in row order.
    Q_INVOKABLE [[nodiscard]] QStringList identities() const;

protected:
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QString hindranceOf(int row) const override;
};
