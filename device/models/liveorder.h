// The devices that the live window goes through.
#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantList>

class CDeviceFactory;
class DeviceTableModel;

/// Those that were chosen when the window was opened, else the rows of the list as they are now. Lives on the
/// scene's thread.
class LiveOrder : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_MOC_INCLUDE("device/models/devicetablemodel.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    /// The list that the window was opened from; may be null.
    Q_PROPERTY(DeviceTableModel *table READ table WRITE setTable NOTIFY tableChanged)
    /// Maps of "ipport" and "name"; empty for the rows of the list.
    Q_PROPERTY(QVariantList chosen READ chosen WRITE setChosen NOTIFY chosenChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)
    Q_PROPERTY(int ticked READ ticked NOTIFY tickedChanged) ///< rows of the list
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

    /// Where a device stands, -1 when it is none of them.
    Q_INVOKABLE [[nodiscard]] int placeOf(const QString &ipport) const;

    /// Address and port of the next device in a direction, 1 or -1, that can be watched; empty when there is
    /// none. From a device that is none of them the way begins before the first one.
    Q_INVOKABLE [[nodiscard]] QString neighbour(const QString &ipport, int direction) const;

    /// The ticked rows of the list whose devices can be watched, in its order.
    Q_INVOKABLE [[nodiscard]] QVariantList tickedDevices() const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void tableChanged();
    void chosenChanged();
    void countChanged();
    void tickedChanged();

private:
    [[nodiscard]] QVariantMap at(int place) const;

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QPointer<DeviceTableModel> m_table;       ///< not owned
    QVariantList m_chosen;
};
