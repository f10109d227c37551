// The fields of the image page for one camera of the logged-in device.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// A copy of the values of the image page that the back end has read from the device. It is complete without
/// a device: lists are empty, and no group is supported then. The form only reads: the page changes values
/// with setConfigData() and then calls read(). read() sends no request to the device. Lives on the main
/// thread.
class CameraForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    /// The channel numbers from "1"; never empty, since a device that reports no channels has one.
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed)
    Q_PROPERTY(int channel READ channel NOTIFY changed)             ///< index in channels
    Q_PROPERTY(QString channelName READ channelName NOTIFY changed) ///< empty also if it was not read
    /// Names of the modes (day, night, ...) that the camera has, in the user's language.
    Q_PROPERTY(QStringList switchModes READ switchModes NOTIFY changed)
    Q_PROPERTY(int switchMode READ switchMode NOTIFY changed) ///< index in switchModes, -1 for none
    /// A map by the names in CameraKey::groups ("picture", "sharpness", ...). Its values are maps with the
    /// keys of CameraSetting and CameraGroupKey. All groups exist; each has at least the bool "support".
    Q_PROPERTY(QVariantMap groups READ groups NOTIFY changed)
    Q_PROPERTY(bool supportsAny READ supportsAny NOTIFY changed) ///< whether a group has "support"
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

    /// Copies all values of the back end again and emits changed(). Also called when the factory is set.
    Q_INVOKABLE void read();

    [[nodiscard]] static QStringList shutterTimes();

    /// The exposure time at an index of shutterTimes in milliseconds; 0 for an index out of range.
    Q_INVOKABLE [[nodiscard]] double shutterMilliseconds(int index) const;

    /// The index in shutterTimes of an exposure time that is given as a range in milliseconds. -1 if
    /// `shortest` and `longest` differ, or if shutterTimes does not have the time. Times that differ by up
    /// to 0.01 % are equal.
    Q_INVOKABLE [[nodiscard]] int shutterIndex(double shortest, double longest) const;

    /// The two calls of setConfigData() with the key "exposure" that set the exposure range from `shortest`
    /// to `longest` (milliseconds), in their order: lists of sub-key and value. `longestNow` is the present
    /// upper bound in milliseconds. The order is such that the lower bound never exceeds the upper one
    /// between the two calls.
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
