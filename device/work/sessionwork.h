#pragma once

#include "device/work/devicework.h"

/// Work of the configuration page on the current session. Each function runs the operations of CDeviceFactory
/// with the same purpose on another thread; the factory emits their signals before ended(). Lives on the main
/// thread.
class SessionWork : public DeviceWork
{
    Q_OBJECT
public:
    explicit SessionWork(QObject *parent = nullptr) : DeviceWork(parent) {}

    /// Logs in for the current session. The value of ended() is a LoginResult.
    Q_INVOKABLE void login(const QString &ipport, const QString &account, const QString &password);

    // Encode page.
    Q_INVOKABLE void readEncoding();
    Q_INVOKABLE void readEncodeChannel();
    /// Selects a channel or stream and reads it. `key` is "curChannel" or "curStreamType".
    Q_INVOKABLE void chooseEncoding(const QString &key, int place);
    /// Sets a value that is written to the device immediately.
    Q_INVOKABLE void writeEncodeValue(const QString &key, const QVariant &value);
    Q_INVOKABLE void saveEncoding(); ///< writes all changed values

    /// Reads the image settings of a channel; -1: the selected channel. The value of ended() is a list of
    /// bool: whether each channel has a camera. It is empty if the device did not respond.
    Q_INVOKABLE void readImage(int channel);
    Q_INVOKABLE void chooseImageMode(int place);
    /// Writes values of the group `key`. Each entry of `values` is a list of sub-key and value.
    Q_INVOKABLE void writeImage(const QString &key, const QVariantList &values);

    /// The value of ended() is a map of "names" and "connected", see CDeviceBase::getDeviceChannelData().
    Q_INVOKABLE void readNames();
    /// Writes the name of a channel (from 0) and reads it back. The value of ended() is a map of "result" and
    /// "name", which is null if the device does not report it.
    Q_INVOKABLE void writeName(int channel, const QString &name);

Q_SIGNALS:
    /// Another page has logged in to a device. Running work was dropped, since it used the previous session.
    void otherLogin();

protected:
    void changeFactory(CDeviceFactory *before) override;

private:
    void beginJob(const SessionJob &job);
    void noteLogin(int result);
};
