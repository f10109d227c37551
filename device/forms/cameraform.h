// The fields of the image page for one camera of the logged-in device.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// Copies the camera values of the back end, by the keys of CDeviceFactory::setConfigData(). Reading sends no
/// request to the device. Lives on the main thread.
class CameraForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed) ///< never empty
    Q_PROPERTY(int channel READ channel NOTIFY changed)           ///< index in channels
    Q_PROPERTY(QString channelName READ channelName NOTIFY changed)
    Q_PROPERTY(QStringList switchModes READ switchModes NOTIFY changed)
    Q_PROPERTY(int switchMode READ switchMode NOTIFY changed) ///< index in switchModes, -1 for none
    /// One map for each group of CameraKey::groups ("picture", "sharpness", ...), with the keys of
    /// CameraSetting and CameraGroupKey. All groups exist; each has the bool "support".
    Q_PROPERTY(QVariantMap groups READ groups NOTIFY changed)
    Q_PROPERTY(bool supportsAny READ supportsAny NOTIFY changed) ///< "support" of any group
    /// Exposure times in seconds, "1/100000" to "1/25".
    Q_PROPERTY(QStringList shutterTimes READ shutterTimes CONSTANT)
public:
    explicit CameraForm(QObject *parent = nullptr);

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);

    [[nodiscard]] QStringList channels() const { return m_channels; }
    [[nodiscard]] int channel() const { return m_channel; }
    [[nodiscard]] QString channelName() const { return m_channelName; }
    [[nodiscard]] QStringList switchModes() const { return m_switchModes; }
    [[nodiscard]] int switchMode() const { return m_switchMode; }
    [[nodiscard]] QVariantMap groups() const { return m_groups; }
    [[nodiscard]] bool supportsAny() const;

    /// Reads all values of the back end again.
    Q_INVOKABLE void read();

    [[nodiscard]] static QStringList shutterTimes();

    /// The exposure time at an index of shutterTimes in milliseconds; 0 for an index out of range.
    Q_INVOKABLE [[nodiscard]] double shutterMilliseconds(int index) const;

    /// The index in shutterTimes of an exposure time given as a range in milliseconds. -1 if `shortest` and
    /// `longest` differ, or if the time is not listed.
    Q_INVOKABLE [[nodiscard]] int shutterIndex(double shortest, double longest) const;

    /// The calls of setConfigData() that set the exposure range in milliseconds, each as [sub-key, value].
    /// The bounds are written one after the other. `longestNow` is the current upper bound; it decides the
    /// order, so that the range is never empty in between.
    Q_INVOKABLE [[nodiscard]] QVariantList shutterWrites(double longestNow, double shortest,
                                                         double longest) const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void changed();

private:
    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before this object
    QStringList m_channels = {QStringLiteral("1")};
    int m_channel = 0;
    QString m_channelName;
    QStringList m_switchModes;
    int m_switchMode = -1;
    QVariantMap m_groups;
};
