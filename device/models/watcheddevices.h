// The devices of the live window, and the channels of all of them.
#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QVariantList>

class CDeviceFactory;

/// The device that the window was opened for, and further ones, which are the rows: for each the scene makes
/// an object, its companion, that holds its session and reports its channels. Lives on the scene's thread.
class WatchedDevices : public QAbstractListModel
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(CDeviceFactory *deviceFactory MEMBER m_deviceFactory NOTIFY deviceFactoryChanged)
    /// The channels of all devices, in the order in which these were added: maps of "ipport", "channel",
    /// "connected", "name", "caption" (which also tells the devices apart), "companion" (null for the first
    /// device) and, for the first channel of each of several devices, "heading".
    Q_PROPERTY(QVariantList channels READ channels NOTIFY channelsChanged)
    Q_PROPERTY(int most READ most CONSTANT)
    Q_PROPERTY(bool full READ isFull NOTIFY countChanged)
    Q_PROPERTY(int leftOut MEMBER m_leftOut NOTIFY countChanged) ///< of those that were to be added last
public:
    explicit WatchedDevices(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override; ///< "ipport" and "name"

    [[nodiscard]] const QVariantList &channels() const { return m_channels; }
    [[nodiscard]] static constexpr int most() { return 15; } ///< further devices
    [[nodiscard]] bool isFull() const { return m_further.size() >= most(); }

    /// The device that the window was opened for. `channels` are maps of "channel" (from 0), "name" and
    /// "connected".
    Q_INVOKABLE void setFirst(const QString &ipport, const QString &name, const QVariantList &channels);

    /// Adds those of the rows that are not there yet, as far as there is room. Returns the places of their
    /// first channels.
    Q_INVOKABLE QVariantList add(const QVariantList &rows);

    /// What a companion knows of its channels, as in setFirst().
    Q_INVOKABLE void setChannels(const QString &ipport, QObject *companion, const QVariantList &channels);

    /// The channels go before the companion: their pictures are of its session.
    Q_INVOKABLE void remove(const QString &ipport);
    Q_INVOKABLE void clear();

    /// Takes the names that the further devices have in the list now.
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
    placeOf(const QString &ipport) const; ///< in m_further, -1 when it is none of them
    [[nodiscard]] QString titleOf(const Device &device) const;
    void gather();

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    Device m_first;
    QList<Device> m_further;
    QVariantList m_channels;
    int m_leftOut = 0;
};
