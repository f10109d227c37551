// Preview of a batch: the planned work of each device.
#pragma once

#include "device/models/deviceselection.h"

#include <QList>
#include <QPointer>

class CDeviceFactory;

/// The devices of a planned batch as table rows, each with its action (the new value, or what will be done)
/// and a note. The note is a warning, or the reason why the device will be skipped. A device that the user
/// unchecks does not take part in the batch and has no note. The preview sends nothing and starts nothing.
/// The device list is read when the devices are set; later changes of the list have no effect. Without a
/// factory, the list counts as empty. Lives on the main thread.
///
/// Keys of a row: "num" (int from 1), "title" (name and model), "mac", "ipport", "identity", "checked"
/// (bool), "action" (empty if the row is skipped or unchecked), "note" (in the user's language) and "kind" (a
/// Kind; Planned if unchecked); as far as they are known also "type", "model", "vision" (version), "state"
/// (bool: initialised), "upgraderes" and "lost" of the device's row. "identity" is the name of the device's
/// row unless a function states otherwise.
class BatchPreview : public DeviceSelection
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY factoryChanged)
    Q_PROPERTY(QString action READ action WRITE setAction NOTIFY judged)
    Q_PROPERTY(int warningCount READ warningCount NOTIFY judged)
    Q_PROPERTY(int skippedCount READ skippedCount NOTIFY judged)
public:
    /// Kind of a row.
    enum Kind
    {
        Planned, ///< part of the batch
        Warned,  ///< part of the batch, with a warning in "note"
        Skipped, ///< part of the batch, but gets no request
    };
    Q_ENUM(Kind)

    explicit BatchPreview(QObject *parent = nullptr);

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    /// The text of "action" of all devices, except of those that setEntries() has set.
    [[nodiscard]] QString action() const { return m_action; }
    void setAction(const QString &action);

    // Numbers of checked rows of the kinds Warned and Skipped.
    [[nodiscard]] int warningCount() const { return m_warningCount; }
    [[nodiscard]] int skippedCount() const { return m_skippedCount; }

    /// Sets the devices from rows of a DeviceTableModel, all of them checked.
    Q_INVOKABLE void setDevices(const QVariantList &rows);

    /// Sets the devices with these addresses and ports, all of them checked. An address without a row of the
    /// list is a device without other values and without an identity.
    Q_INVOKABLE void setAddresses(const QStringList &ipports);

    /// Sets the devices and their actions, all of them checked. Each entry is a map of "name", "ipport" and
    /// "action" and, optionally, "title" (put before the title of the device), "mac" (of a device without a
    /// row), "hindrance" (reason to skip the device, in the user's language) and "newAddress" (the address
    /// that the device gets, for warnings). "name" becomes the identity, which checkedIdentities() returns.
    /// The row of the device in the device list is the one with this name, otherwise the one at "ipport".
    Q_INVOKABLE void setEntries(const QVariantList &entries);

    // "ipport" of the checked rows, and of the others, in row order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedAddresses() const { return addressesOf(true); }
    Q_INVOKABLE [[nodiscard]] QStringList uncheckedAddresses() const { return addressesOf(false); }

    /// The warnings, one line for each device: the first three, and a line "…" if there are more.
    Q_INVOKABLE [[nodiscard]] QString warnings() const;

Q_SIGNALS:
    void factoryChanged();
    void judged(); ///< actions, notes, kinds and counts were computed again

protected:
    /// The values that are computed for a row.
    struct Judgement
    {
        Kind kind = Planned;
        QString action = {};
        QString note = {};
        bool isConflict = false; ///< role "conflict": the table highlights the row
    };

    /// A device of the list at the time when the devices were set.
    struct ListedDevice
    {
        QString identity;
        QString ipport;
        QString description; ///< model and MAC; address and port if it reports neither
    };

    /// The judgement of a checked row. By default a device is Skipped if it has a hindrance. It is Warned if
    /// another device that is not "lost" has its address and port, if another checked device gets the same
    /// new address, or if another device of the list, also a lost one, has the new address and keeps it.
    [[nodiscard]] virtual Judgement judgementOf(int row) const;

    /// Called by rejudge() before judgementOf(), so that a subclass can compute values for all rows. Must not
    /// call rejudge().
    virtual void prepare() {}

    /// Computes the judgements of all rows again and emits judged(). Called when devices are set or checked;
    /// a subclass calls it when its settings change.
    void rejudge();

    /// Reason to skip the device of a row, in the user's language; empty if there is none. By default the
    /// "hindrance" of setEntries(), a device that is not initialised, and a running upgrade.
    [[nodiscard]] virtual QString hindranceOf(int row) const;
    [[nodiscard]] const QList<ListedDevice> &listedDevices() const { return m_listed; }
    /// The values of the device of a row, without those that are computed.
    [[nodiscard]] QVariantMap deviceAt(int row) const { return DeviceSelection::valuesOf(row); }
    [[nodiscard]] QString addressAndPortOf(int row) const;

    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    [[nodiscard]] QStringList addressesOf(bool checked) const;
    [[nodiscard]] QVariantList listedRows() const;
    /// The devices of the list by name, and by "ipport" as rowsByAddress() selects them.
    [[nodiscard]] QHash<QString, QVariantMap> devicesByName() const;
    void readList();
    /// Whether a device other than `identity` gets `address` too, or has it and keeps it.
    [[nodiscard]] bool isTaken(const QString &address, const QString &identity) const;

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    QString m_action;
    QList<ListedDevice> m_listed;
    QHash<QString, int> m_devicesAt;             ///< devices that are not offline, by address and port
    QMultiHash<QString, QString> m_identitiesAt; ///< identities of the list by address
    QSet<QString> m_readdressed;                 ///< identities of checked rows with a new address
    QHash<QString, int> m_newAddresses;          ///< number of checked rows by new address
    QList<Judgement> m_judgements;               ///< by row; default values for unchecked rows
    int m_warningCount = 0;
    int m_skippedCount = 0;
};
