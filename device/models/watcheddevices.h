// The devices of the live window, and the channels of all of them.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QVariantList>

class CDeviceFactory;

/// The rows are the additional devices; the first device, for which the window was opened, is not a row. For
/// each row QML creates a companion object, which holds the session of the device and reports its channels.
/// Lives on the main thread.
class WatchedDevices : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(CDeviceFactory *deviceFactory MEMBER m_deviceFactory NOTIFY deviceFactoryChanged)
    /// The channels of all devices, in the order in which the devices were added: maps of "ipport",
    /// "channel", "connected", "name" (never empty), "caption" (the name that the device reports, with the
    /// device if there are several), "companion" (null for the first device) and "heading" (only with several
    /// devices, for the first channel of each). A device without a companion, or whose companion is
    /// destroyed, is left out.
    Q_PROPERTY(QVariantList channels READ channels NOTIFY channelsChanged)
    Q_PROPERTY(int most READ most CONSTANT)
    Q_PROPERTY(bool full READ isFull NOTIFY countChanged)
    Q_PROPERTY(int leftOut MEMBER m_leftOut NOTIFY countChanged) ///< rows that the last add() had no room for
public:
    explicit WatchedDevices(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override; ///< "ipport" and "name"

    [[nodiscard]] const QVariantList &channels() const { return m_channels; }
    [[nodiscard]] static constexpr int most() { return 15; } ///< maximum number of additional devices
    [[nodiscard]] bool isFull() const { return m_further.size() >= most(); }

    /// Sets the first device. `channels` are maps of "channel" (from 0), "name" (may be empty) and
    /// "connected".
    Q_INVOKABLE void setFirst(const QString &ipport, const QString &name, const QVariantList &channels);

    /// Adds the devices (maps of "ipport", "name" and "model") that are neither a row nor the first device,
    /// up to most(). A device without a name gets its model as its name, or its "ipport" if that is empty,
    /// too. Returns the indexes in `channels` of the first channel of each added device, if it is known
    /// already.
    Q_INVOKABLE QVariantList add(const QVariantList &rows);

    /// Sets the channels that a companion has read, in the format of setFirst().
    Q_INVOKABLE void setChannels(const QString &ipport, QObject *companion, const QVariantList &channels);

    /// Removes a device. Its channels are removed first, since their streams use the companion's session.
    Q_INVOKABLE void remove(const QString &ipport);
    Q_INVOKABLE void clear(); ///< removes all rows; the first device and its channels remain

    /// Updates the names of the additional devices from the device list. A name that is empty there is not
    /// taken.
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
