// The devices of the live window, and the channels of all of them.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QVariantList>

class CDeviceFactory;

/// The rows are the additional devices of the live window, with the roles "ipport" and "name". The first
/// device, for which the window was opened, is not a row. For each row QML creates a companion object, which
/// logs in to the device, owns that session and passes its channels to setChannels(). Lives on the main
/// thread; sends no requests.
class WatchedDevices : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    /// Used by readNames() only.
    Q_PROPERTY(CDeviceFactory *deviceFactory MEMBER m_deviceFactory NOTIFY deviceFactoryChanged)
    /// The channels of all devices, in the order in which the devices were added: maps of "ipport", "channel"
    /// (from 0), "connected", "name" (never empty: without a reported name it is made of the channel number),
    /// "caption", "companion" (null for the first device) and "heading". The caption is the reported name,
    /// which may be empty. With several devices the title of the device precedes it, unless the name begins
    /// with the title. The title is the device's name, with the address and port if two devices have the same
    /// name. The heading is that title; only the first channel of each device has one, and only with several
    /// devices. An additional device without a companion, or whose companion is destroyed, is left out.
    Q_PROPERTY(QVariantList channels READ channels NOTIFY channelsChanged)
    Q_PROPERTY(int most READ most CONSTANT)
    Q_PROPERTY(bool full READ isFull NOTIFY countChanged)
    /// The number of devices that the last add() did not add because most() was reached.
    Q_PROPERTY(int leftOut MEMBER m_leftOut NOTIFY countChanged)
public:
    explicit WatchedDevices(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override; ///< "ipport" and "name"

    [[nodiscard]] const QVariantList &channels() const { return m_channels; }
    [[nodiscard]] static constexpr int most() { return 15; } ///< maximum number of additional devices
    [[nodiscard]] bool isFull() const { return m_further.size() >= most(); }

    /// Sets or replaces the first device. `channels` are maps of "channel" (from 0), "name" (may be empty)
    /// and "connected".
    Q_INVOKABLE void setFirst(const QString &ipport, const QString &name, const QVariantList &channels);

    /// Adds the devices (maps of "ipport", "name" and "model") that are neither a row nor the first device,
    /// up to most() rows. Of several devices with the same "ipport" (an address conflict), only the first one
    /// is added. A device without a name gets its model as its name, or its "ipport" if the model is empty,
    /// too. Returns the index in `channels` of the first channel of each added device; a device whose
    /// channels are not known yet has none.
    Q_INVOKABLE QVariantList add(const QVariantList &rows);

    /// Sets the companion of a row and the channels that it has read, in the format of setFirst(). The
    /// companion is not owned. Ignored if no row has this address and port.
    Q_INVOKABLE void setChannels(const QString &ipport, QObject *companion, const QVariantList &channels);

    /// Removes a row; ignored if there is none. `channels` changes before the row is removed, since the
    /// streams of these channels use the companion's session.
    Q_INVOKABLE void remove(const QString &ipport);
    Q_INVOKABLE void clear(); ///< same for all rows; the first device and its channels remain

    /// Sets the names of the rows to the names in the device list. A row keeps its name if the name in the
    /// list is empty.
    Q_INVOKABLE void readNames();

Q_SIGNALS:
    void deviceFactoryChanged();
    void channelsChanged();
    void countChanged();

private:
    struct Device
    {
        QString ipport = {};
        QString name = {};
        QVariantList channels = {};
        QPointer<QObject> companion = {}; ///< not owned
    };

    [[nodiscard]] qsizetype
    positionOf(const QString &ipport) const; ///< row; -1 if it is not an additional device
    [[nodiscard]] QString titleOf(const Device &device) const;
    void gather();

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    Device m_first;
    QList<Device> m_further;
    QVariantList m_channels;
    int m_leftOut = 0;
};
