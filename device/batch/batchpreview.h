// What a batch will do with each of its devices.
#pragma once

#include "device/models/deviceselection.h"

#include <QList>
#include <QPointer>

class CDeviceFactory;

/// The devices of a batch that is about to begin, with what will happen to each. A note warns of what may go
/// wrong, or says why the batch will not do anything with the device. A device that the user unticks takes no
/// part in the batch, and has no note.
///
/// Keys of a row: "num", "title" (name and model), "mac", "ipport", "identity", "checked", "action" (what
/// happens; empty when nothing does), "note" and "kind".
class BatchPreview : public DeviceSelection
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY factoryChanged)
    Q_PROPERTY(QString action READ action WRITE setAction NOTIFY judged)
    Q_PROPERTY(int warningCount READ warningCount NOTIFY judged)
    Q_PROPERTY(int skippedCount READ skippedCount NOTIFY judged)
public:
    enum Kind
    {
        Planned,
        Warned,
        Skipped, ///< the batch will report it, but do nothing with it
    };
    Q_ENUM(Kind)

    explicit BatchPreview(QObject *parent = nullptr);

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    /// What happens to each device, in words.
    [[nodiscard]] QString action() const { return m_action; }
    void setAction(const QString &action);

    [[nodiscard]] int warningCount() const { return m_warningCount; } ///< of ticked rows
    [[nodiscard]] int skippedCount() const { return m_skippedCount; }

    /// Takes device rows, as a DeviceTableModel has them, all of them ticked.
    Q_INVOKABLE void setDevices(const QVariantList &rows);

    /// Takes the devices that have these addresses and ports.
    Q_INVOKABLE void setAddresses(const QStringList &ipports);

    /// Takes what is planned: maps of "name", by which checkedIdentities() names the entry, "ipport",
    /// "action" and, if wanted, "title" (before that of the device), "mac" (of one that is not listed),
    /// "hindrance" (why nothing happens to it) and "newAddress" (that it gets). The device is the one of that
    /// name, or else the first one of that address and port.
    Q_INVOKABLE void setEntries(const QVariantList &entries);

    /// "ipport" of the ticked rows, and of the others, in their order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedAddresses() const { return addressesOf(true); }
    Q_INVOKABLE [[nodiscard]] QStringList uncheckedAddresses() const { return addressesOf(false); }

    /// What the warnings are about, a line for each device, the first few of them.
    Q_INVOKABLE [[nodiscard]] QString warnings() const;

Q_SIGNALS:
    void factoryChanged();
    void judged();

protected:
    /// What will come of a device.
    struct Judgement
    {
        Kind kind = Planned;
        QString action = {};
        QString note = {};
        bool isConflict = false; ///< the row stands out
    };

    /// The devices of the list, as they were when the devices of the batch were taken.
    struct ListedDevice
    {
        QString identity;
        QString ipport;
        QString words; ///< model and MAC, or the address and port when it reports neither
    };

    /// Of a ticked row.
    [[nodiscard]] virtual Judgement judgementOf(int row) const;

    /// Before judgementOf() is asked for each row, when the ticks have changed or rejudge() was called.
    virtual void prepare() {}

    void rejudge();

    /// Why nothing can be done with the device of a row; empty when it can.
    [[nodiscard]] virtual QString hindranceOf(int row) const;
    [[nodiscard]] const QList<ListedDevice> &listedDevices() const { return m_listed; }
    [[nodiscard]] QVariantMap deviceAt(int row) const { return DeviceSelection::valuesOf(row); }
    [[nodiscard]] QString addressAndPortOf(int row) const;

    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    [[nodiscard]] QStringList addressesOf(bool checked) const;
    [[nodiscard]] QVariantList listedRows() const;
    /// The devices of the list by name, and the first one of each address by that.
    [[nodiscard]] QHash<QString, QVariantMap> devicesByName() const;
    void readList();
    /// Whether another device than `identity` gets `address` as well, or has it in the list and keeps it.
    [[nodiscard]] bool isTaken(const QString &address, const QString &identity) const;

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QString m_action;
    QList<ListedDevice> m_listed;
    QHash<QString, int> m_devicesAt;             ///< devices of the list by address and port
    QMultiHash<QString, QString> m_identitiesAt; ///< of the list, by address
    QSet<QString> m_readdressed;                 ///< identities of ticked rows with a new address
    QHash<QString, int> m_newAddresses;          ///< ticked rows by the address that they get
    QList<Judgement> m_judgements;               ///< by row; empty ones of unticked rows
    int m_warningCount = 0;
    int m_skippedCount = 0;
};
