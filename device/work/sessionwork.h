#pragma once

#include "device/work/devicework.h"

/// Work of the configuration page on the current session. Each function runs the operations of CDeviceFactory
/// with the same purpose on another thread; the factory emits their signals before ended(). The value of
/// ended() is invalid unless a function states it. Lives on the main thread.
class SessionWork : public DeviceWork
{
    Q_OBJECT
public:
    explicit SessionWork(QObject *parent = nullptr) : DeviceWork(parent) {}

    /// Logs in for the current session. The value of ended() is a LoginResult.
    Q_INVOKABLE void login(const QString &ipport, const QString &account, const QString &password);

    // Encode page.
    Q_INVOKABLE void readEncoding();      ///< as readEncodeChannel(), and the colours of the channel
    Q_INVOKABLE void readEncodeChannel(); ///< choices and values of the selected channel
    /// Selects a channel or stream and reads it. `key` is "curChannel" or "curStreamType"; `index` is its
    /// number from 0.
    Q_INVOKABLE void chooseEncoding(const QString &key, int index);
    /// Sets a value of EncodeKey that setConfigData() writes to the device immediately.
    Q_INVOKABLE void writeEncodeValue(const QString &key, const QVariant &value);
    Q_INVOKABLE void saveEncoding(); ///< writes all changed values

    /// Reads the image settings of a channel (from 0); -1: the selected channel. The value of ended() is a
    /// list of bool: whether each channel has a camera. It is empty if the device did not respond.
    Q_INVOKABLE void readImage(int channel);
    /// Selects the mode with this index in "allSwitchMode" and reads its settings.
    Q_INVOKABLE void chooseImageMode(int index);
    /// Writes values of the group `key`, in their order. Each entry of `values` is a list of sub-key and
    /// value. The rest is not written when the device stops responding.
    Q_INVOKABLE void writeImage(const QString &key, const QVariantList &values);

    /// Reads the names of all channels. The value of ended() is a map of "names" and "connected", with the
    /// lists of CDeviceBase::getDeviceChannelData(). "connected" is empty if the device did not respond.
    Q_INVOKABLE void readNames();
    /// Writes the name of a channel (from 0) and reads it back. The value of ended() is a map of "result" (a
    /// LoginResult) and "name", which is null after a failure or if the device does not report it.
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
