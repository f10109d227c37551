// Which devices get their first password.
#pragma once

#include "device/batch/batchpreview.h"

/// The devices that the user has ticked for their first password: the factory-new ones at the top, then those
/// that will not get one. A row also has "type" and "vision", the version of the device. They are reached by
/// their MACs: it does not matter whether they share an address.
class FirstPasswordPreview : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(int deviceCount READ deviceCount NOTIFY judged)
public:
    explicit FirstPasswordPreview(QObject *parent = nullptr) : BatchPreview(parent) {}

    /// Takes device rows, as a DeviceTableModel has them, all of them ticked.
    Q_INVOKABLE void setTicked(const QVariantList &rows);

    /// Ticked devices that get a password, and their identities.
    [[nodiscard]] int deviceCount() const { return checkedCount() - skippedCount(); }
    Q_INVOKABLE [[nodiscard]] QStringList identities() const;

protected:
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QString hindranceOf(int row) const override;
};
