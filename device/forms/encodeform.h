// The fields of the encode page for one channel of the logged-in device.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// The back end's values of the encode page in a form that is complete regardless of the device's report. It
/// also detects the values that differ from those on the device. The page reads the device, and confirms
/// changes, with the operations of the factory. This object only reads and sets values of the back end,
/// without a request to the device, except for the key "subCurResolution": set() then writes to the device
/// and blocks for the timeouts of the device library. Lives on the main thread.
class EncodeForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    /// The channel numbers from "1"; never empty, since a device that reports no channels has one.
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed)
    Q_PROPERTY(int channel READ channel NOTIFY changed) ///< index in channels
    /// The types of the main stream that the device offers; may be empty.
    Q_PROPERTY(QStringList streamTypes READ streamTypes NOTIFY changed)
    Q_PROPERTY(int streamType READ streamType NOTIFY changed) ///< index in streamTypes
    /// A map by the names of the settings: "encodeMode", "resolution", "control" (of the bit rate: 0
    /// constant, 1 variable), "bitRate" (kbit/s), "frameRate" (frames per second), "quality" (1 to 6),
    /// "audioEnable", "audioCompression", "samplingFrequency" (Hz) and "videoEnable". The value of each is a
    /// map with all of these keys:
    ///
    ///  - "key": the key for set(); empty for "videoEnable" of the main stream, which cannot be set
    ///  - "changed": whether the value differs from the value on the device
    ///  - "choices", "index": for a setting with choices: strings including the current one, and its index;
    ///    -1 if unknown. set() takes the string.
    ///  - "names": the choices as shown to the user
    ///  - "value", "minimum", "maximum": for a number or switch (0 or 1); an unknown value is below
    ///    "minimum". "bitRate" has choices and a value: set() takes the value, and the last choice means any
    ///    other value.
    ///  - "usable": whether the value was read and another one can be set; without meaning for "videoEnable"
    ///    of the main stream, whose numbers are 0
    ///
    /// The keys "exists" and "hasAudio" (bool) of the map say whether the device has this stream, and audio
    /// in it. The map is empty before a factory is set.
    Q_PROPERTY(QVariantMap mainStream READ mainStream NOTIFY changed)
    Q_PROPERTY(QVariantMap subStream READ subStream NOTIFY changed)
    /// The types of the sub stream that the device offers; may be empty.
    Q_PROPERTY(QStringList subStreamTypes READ subStreamTypes NOTIFY changed)
    Q_PROPERTY(int changedCount READ changedCount NOTIFY changed) ///< settings with "changed"
    /// Whether the device reported the supported encode modes and resolutions of the main stream.
    Q_PROPERTY(bool complete READ isComplete NOTIFY changed)
    /// Whether the device accepted any item of the last write, or lacks an item, which counts as accepted
    /// then. False after the device was read again.
    Q_PROPERTY(bool taken READ isTaken NOTIFY changed)
    /// The names, in the user's language, of the items (groups of settings that are written together) that
    /// the device has but that could not be read. They are not written either.
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

    /// Takes the values of the back end as the values on the device: none counts as changed. Called after
    /// the page has read the device. Also called when the factory is set.
    Q_INVOKABLE void read();

    /// Called after a save: takes the values that the device accepted as the values on the device. The other
    /// values still count as changed.
    Q_INVOKABLE void takeSaved();

    /// Sets a value in the back end (see CDeviceFactory::setConfigData()) and reads all values again, since
    /// the back end may ignore an invalid value or change others.
    Q_INVOKABLE void set(const QString &key, const QVariant &value);

    /// Whether a result of CDeviceFactory::signalGetDeviceCapRet() means a lost session: the device does not
    /// respond, or no longer accepts the login. False for success and for a refusal.
    Q_INVOKABLE [[nodiscard]] static bool isDeviceAway(int result);

    /// The message for a failed result of that signal, in the user's language: no response, expired login,
    /// not supported, busy, refused (with the error code), or device being upgraded.
    Q_INVOKABLE [[nodiscard]] static QString failureName(int result);

Q_SIGNALS:
    void deviceFactoryChanged();
    void changed(); ///< at the end of read(), takeSaved() and set(), also if all values are equal

private:
    void fetch(); ///< copies all values of the back end; with m_isReading also to m_read
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
