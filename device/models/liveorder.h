// The devices that the live window steps through.
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantList>

class CDeviceFactory;
class DeviceTableModel;

/// The order of the devices in the live window: the chosen devices, or the rows of the table if none was
/// chosen. A device can be watched if it is in the device list, is initialised and has an address; the others
/// are in the order, but are skipped. Lives on the main thread.
class LiveOrder : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_MOC_INCLUDE("device/models/devicetablemodel.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    /// The table that the window was opened from; may be null, then there is no device without chosen ones.
    Q_PROPERTY(DeviceTableModel *table READ table WRITE setTable NOTIFY tableChanged)
    /// The devices that were chosen when the window was opened: maps with "ipport" and "name". A map without
    /// "state" counts as initialised, one without "absent" as listed. Empty: the rows of the table are used.
    Q_PROPERTY(QVariantList chosen READ chosen WRITE setChosen NOTIFY chosenChanged)
    /// The number of devices in the order, with those that cannot be watched.
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int ticked READ ticked NOTIFY tickedChanged) ///< number of checked rows of the table
public:
    explicit LiveOrder(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] DeviceTableModel *table() const;
    void setTable(DeviceTableModel *table);
    [[nodiscard]] const QVariantList &chosen() const { return m_chosen; }
    void setChosen(const QVariantList &chosen);
    [[nodiscard]] int count() const;
    [[nodiscard]] int ticked() const;

    /// The index (from 0) of the device with this address and port; -1 if it is not in the order. For the
    /// rows of the table also -1 without a factory. If several rows have this address, that of
    /// CDeviceFactory::getDeviceInfo() is preferred.
    Q_INVOKABLE [[nodiscard]] int positionOf(const QString &ipport) const;

    /// Address and port of the nearest device after `ipport` (direction 1) or before it (direction -1) that
    /// can be watched; empty if there is none. The order does not wrap around. If `ipport` is not in the
    /// order, direction 1 starts with the first device, and direction -1 finds none.
    Q_INVOKABLE [[nodiscard]] QString neighbour(const QString &ipport, int direction) const;

    /// The checked rows of the table whose devices can be watched, in table order, as DeviceTableModel::get()
    /// returns them.
    Q_INVOKABLE [[nodiscard]] QVariantList tickedDevices() const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void tableChanged();
    void chosenChanged();
    void countChanged();
    void tickedChanged();

private:
    [[nodiscard]] QVariantMap at(int position) const;

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    QPointer<DeviceTableModel> m_table;       ///< not owned
    QVariantList m_chosen;
};
