// The fields of the encode page for one channel of the logged-in device.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// Provides the encode values of the back end in a form that is complete regardless of the device's report,
/// and detects the values that the user has changed since they were read. Calls the back end only, except for
/// the key "subCurResolution": setting it queries the device and blocks for the timeouts of the device
/// library. Lives on the main thread.
class EncodeForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed) ///< never empty
    Q_PROPERTY(int channel READ channel NOTIFY changed)           ///< index in channels
    /// The types of the main stream that the device offers; may be empty.
    Q_PROPERTY(QStringList streamTypes READ streamTypes NOTIFY changed)
    Q_PROPERTY(int streamType READ streamType NOTIFY changed) ///< index in streamTypes
    /// One map for each setting ("encodeMode", "resolution", "control", "bitRate", "frameRate", "quality",
    /// "audioEnable", "audioCompression", "samplingFrequency", "videoEnable"). Each map has all of these
    /// keys:
    ///  - "key": the key for set(); empty for "videoEnable" of the main stream, which cannot be set
    ///  - "changed": whether the value differs from the value read
    ///  - "choices", "index": strings including the current one, and its index; -1 if unknown
    ///  - "names": the choices as shown to the user
    ///  - "value", "minimum", "maximum": numbers; an unknown value is below "minimum"
    ///  - "usable": whether the value was read and another one can be set
    /// The keys "exists" and "hasAudio" (bool) say whether the device has this stream, and audio in it.
    Q_PROPERTY(QVariantMap mainStream READ mainStream NOTIFY changed)
    Q_PROPERTY(QVariantMap subStream READ subStream NOTIFY changed)
    /// The types of the sub stream that the device offers; may be empty.
    Q_PROPERTY(QStringList subStreamTypes READ subStreamTypes NOTIFY changed)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed)
    /// Whether the device reported the supported encode modes and resolutions of the main stream.
    Q_PROPERTY(bool complete READ isComplete NOTIFY changed)
    /// Whether the device accepted any item of the last write and was not read since.
    Q_PROPERTY(bool taken READ isTaken NOTIFY changed)
    /// The names of the items that were not read. They are not written either.
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

    /// Reads the values of the back end as the device's values: none counts as changed.
    Q_INVOKABLE void read();

    /// Reads the values that the device accepted in the last save as the device's values. The others still
    /// count as changed.
    Q_INVOKABLE void takeSaved();

    /// Sets a value in the back end and reads the resulting values.
    Q_INVOKABLE void set(const QString &key, const QVariant &value);

    /// Whether a result of CDeviceFactory::signalGetDeviceCapRet() means a lost session (no response, or the
    /// login is no longer valid) and not a refusal.
    Q_INVOKABLE [[nodiscard]] static bool isDeviceAway(int result);

    /// The message for such a result in the user's language: no response, expired login, not supported,
    /// refused, or device being upgraded.
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

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    QStringList m_channels = {QStringLiteral("1")};
    int m_channel = 0;
    QStringList m_streamTypes;
    int m_streamType = 0;
    QStringList m_subStreamTypes;
    QVariantMap m_main;
    QVariantMap m_sub;
    QHash<QString, QVariant> m_read; ///< values on the device, by key
    bool m_isReading = false;
    QList<int> m_takenItems;    ///< indexes of the items that the device accepted in the last write
    QList<int> m_unreadIndexes; ///< indexes of the items that were not read
    int m_changedCount = 0;
    bool m_isComplete = false;
    QStringList m_unreadItems;
};
