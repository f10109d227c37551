// What the image page shows of a camera of the logged-in device.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>

class CDeviceFactory;

/// The values of the back end, by the keys that they are changed by. Reading them asks the back end, never
/// the device.
class CameraForm : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/registry/devicefactory.h")
    Q_PROPERTY(
        CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY deviceFactoryChanged)
    Q_PROPERTY(QStringList channels READ channels NOTIFY changed) ///< never empty
    Q_PROPERTY(int channel READ channel NOTIFY changed)
    Q_PROPERTY(QString channelName READ channelName NOTIFY changed)
    Q_PROPERTY(QStringList switchModes READ switchModes NOTIFY changed)
    Q_PROPERTY(int switchMode READ switchMode NOTIFY changed) ///< place in switchModes, -1 for none
    /// Maps by group ("picture", "sharpness", ...), always with all groups, each with "support".
    Q_PROPERTY(QVariantMap groups READ groups NOTIFY changed)
    Q_PROPERTY(bool supportsAny READ supportsAny NOTIFY changed)
    /// "1/100000" to "1/25".
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

    Q_INVOKABLE void read();

    [[nodiscard]] static QStringList shutterTimes();

    /// The time at a place in shutterTimes in milliseconds, 0 for a place outside.
    Q_INVOKABLE [[nodiscard]] double shutterMilliseconds(int place) const;

    /// The place in shutterTimes of a shutter that opens from `shortest` to `longest` milliseconds; -1 for a
    /// range, and for a time that is not listed.
    Q_INVOKABLE [[nodiscard]] int shutterPlace(double shortest, double longest) const;

    /// The writes that bring the shutter to the range from `shortest` to `longest`, each as [sub-key, value].
    /// Each bound is a write of its own; `longestNow` decides their order, so that the range in between is
    /// not empty.
    Q_INVOKABLE [[nodiscard]] QVariantList shutterWrites(double longestNow, double shortest,
                                                         double longest) const;

Q_SIGNALS:
    void deviceFactoryChanged();
    void changed();

private:
    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QStringList m_channels = {QStringLiteral("1")};
    int m_channel = 0;
    QString m_channelName;
    QStringList m_switchModes;
    int m_switchMode = -1;
    QVariantMap m_groups;
};
