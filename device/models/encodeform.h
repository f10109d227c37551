// What the encode page shows of a channel of the logged-in device.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// The values of the back end, completed so that a page can show them whatever a device told, and which of
/// them the user has changed since they were read. Reading and changing values asks the back end, and the
/// device only for "subCurResolution", which blocks for the waits of the library.
class EncodeForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed) ///< never empty
    Q_PROPERTY(int channel READ channel NOTIFY changed)
    Q_PROPERTY(QStringList streamTypes READ streamTypes NOTIFY changed)
    Q_PROPERTY(int streamType READ streamType NOTIFY changed)
    /// A map for each setting ("encodeMode", "resolution", "control", "bitRate", "frameRate", "quality",
    /// "audioEnable", "audioCompression", "samplingFrequency", "videoEnable"), always with all of:
    ///  - "key": the key that it is changed by
    ///  - "changed": whether it differs from what was read
    ///  - "choices" and "index": texts, with the current one among them, and its place, -1 while there is
    ///  none
    ///  - "names": the choices as the user reads them
    ///  - "value", "minimum" and "maximum": numbers
    ///  - "usable": whether its value was read and there is anything to choose. While the value is unknown,
    ///    "index" is -1 and "value" lies below "minimum".
    /// Beside them "exists" and "hasAudio": whether the device has such a stream, and sound with it.
    Q_PROPERTY(QVariantMap mainStream READ mainStream NOTIFY changed)
    Q_PROPERTY(QVariantMap subStream READ subStream NOTIFY changed)
    Q_PROPERTY(QStringList subStreamTypes READ subStreamTypes NOTIFY changed)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed)
    /// Whether the device told what it can do.
    Q_PROPERTY(bool complete READ isComplete NOTIFY changed)
    /// Whether the device took anything at the last writing, if it has not been read since.
    Q_PROPERTY(bool taken READ isTaken NOTIFY changed)
    /// The names of the items that were not read, and are therefore not written.
    Q_PROPERTY(QStringList unreadItems READ unreadItems NOTIFY changed)
public:
    explicit EncodeForm(QObject *parent = nullptr) : QObject(parent) {}

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    [[nodiscard]] QStringList channels() const { return m_channels; }
    [[nodiscard]] int channel() const { return m_channel; }
    [[nodiscard]] QStringList streamTypes() const { return m_streamTypes; }
    [[nodiscard]] int streamType() const { return m_streamType; }
    [[nodiscard]] QStringList subStreamTypes() const { return m_subStreamTypes; }
    [[nodiscard]] QVariantMap mainStream() const { return m_main; }
    [[nodiscard]] QVariantMap subStream() const { return m_sub; }
    [[nodiscard]] int changedCount() const { return m_changedCount; }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    [[nodiscard]] bool isTaken() const { return !m_takenItems.isEmpty(); }
    [[nodiscard]] QStringList unreadItems() const { return m_unreadItems; }

    /// Takes the back end's values as those that the device has: nothing counts as changed.
    Q_INVOKABLE void read();

    /// Takes the values that the device accepted at the last saving as those that it has; the others still
    /// count as changed.
    Q_INVOKABLE void takeSaved();

    /// Passes a changed value on and shows what came of it.
    Q_INVOKABLE void set(const QString &key, const QVariant &value);

    /// Whether a result of a factory's signalGetDeviceCapRet() says that the session is lost, and not that
    /// the device refused: it did not answer, or no longer accepts the login.
    Q_INVOKABLE [[nodiscard]] static bool isDeviceAway(int result);

    /// What such a result says, in the user's language: no response, a login that has ended, not supported,
    /// refused, or that the device is being upgraded.
    Q_INVOKABLE [[nodiscard]] static QString failureName(int result);

Q_SIGNALS:
    void deviceFactoryChanged();
    void changed();

private:
    void fetch();
    [[nodiscard]] bool isTaken(const QString &key) const;
    [[nodiscard]] QVariant value(const QString &key) const;
    [[nodiscard]] QVariantMap stream(bool isSub);
    [[nodiscard]] QVariantMap choice(const QString &list, const QString &current);
    [[nodiscard]] QVariantMap bitRate(const QString &list, const QString &current, const QString &rate);
    [[nodiscard]] QVariantMap number(const QString &key, int minimum, int maximum);
    [[nodiscard]] bool noteChange(const QString &key, const QVariant &value);

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QStringList m_channels = {QStringLiteral("1")};
    int m_channel = 0;
    QStringList m_streamTypes;
    int m_streamType = 0;
    QStringList m_subStreamTypes;
    QVariantMap m_main;
    QVariantMap m_sub;
    QHash<QString, QVariant> m_read; ///< values as they were read, by key
    bool m_isReading = false;
    QList<int> m_takenItems;   ///< the places of those that the device took at the last writing
    QList<int> m_unreadPlaces; ///< of the items that were not read
    int m_changedCount = 0;
    bool m_isComplete = false;
    QStringList m_unreadItems;
};
