// Preview of a batch: the planned work of each device.
#pragma once

#include "device/models/deviceselection.h"

#include <QList>
#include <QPointer>

class CDeviceFactory;

/// The devices of a planned batch as table rows, each with its action and a note. The note is a warning, or
/// the reason why the device will be skipped. A device that the user unchecks does not take part in the batch
/// and has no note. Lives on the main thread.
///
/// Keys of a row: "num" (from 1), "title" (name and model), "mac", "ipport", "identity", "checked", "action"
/// (empty if the row is skipped or unchecked), "note" and "kind" (a Kind; Planned if unchecked).
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
        Planned,
        Warned,
        Skipped, ///< part of the batch, but gets no request
    };
    Q_ENUM(Kind)

    explicit BatchPreview(QObject *parent = nullptr);

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    /// The text of "action" for devices that were not set by setEntries().
    [[nodiscard]] QString action() const { return m_action; }
    void setAction(const QString &action);

    [[nodiscard]] int warningCount() const { return m_warningCount; } ///< among checked rows
    [[nodiscard]] int skippedCount() const { return m_skippedCount; }

    /// Sets the devices from rows of a DeviceTableModel, all of them checked.
    Q_INVOKABLE void setDevices(const QVariantList &rows);

    /// Sets the devices with these addresses and ports, all of them checked.
    Q_INVOKABLE void setAddresses(const QStringList &ipports);

    /// Sets the devices and actions, all of them checked: maps of "name" (returned by checkedIdentities()),
    /// "ipport", "action" and, optionally, "title" (put before that of the device), "mac" (of a device
    /// without a row), "hindrance" (reason to skip the device) and "newAddress". The row of a device is found
    /// by "name", otherwise by "ipport".
    Q_INVOKABLE void setEntries(const QVariantList &entries);

    // "ipport" of the checked rows, and of the others, in row order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedAddresses() const { return addressesOf(true); }
    Q_INVOKABLE [[nodiscard]] QStringList uncheckedAddresses() const { return addressesOf(false); }

    /// The warnings, one line for each device: the first three, and a line "…" if there are more.
    Q_INVOKABLE [[nodiscard]] QString warnings() const;

Q_SIGNALS:
    void factoryChanged();
    void judged();

protected:
    /// The planned result of a row.
    struct Judgement
    {
        Kind kind = Planned;
        QString action = {};
        QString note = {};
        bool isConflict = false; ///< the row is highlighted
    };

    /// A device of the list at the time when the devices were set.
    struct ListedDevice
    {
        QString identity;
        QString ipport;
        QString description; ///< model and MAC; address and port if it reports neither
    };

    /// The judgement of a checked row. By default a device is skipped if it has a hindrance. It is warned if
    /// another device that is not offline has its address and port, if another checked device gets its new
    /// address, or if another device of the list, also an offline one, has the new address and keeps it.
    [[nodiscard]] virtual Judgement judgementOf(int row) const;

    /// Called once before judgementOf() is called for all checked rows: after a change of the checked rows
    /// and by rejudge().
    virtual void prepare() {}

    /// Computes the judgements of all rows again and emits judged().
    void rejudge();

    /// Reason to skip the device of a row, in the user's language; empty if there is none. By default the
    /// "hindrance" of setEntries(), a device that is not initialised, and a running upgrade.
    [[nodiscard]] virtual QString hindranceOf(int row) const;
    [[nodiscard]] const QList<ListedDevice> &listedDevices() const { return m_listed; }
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
