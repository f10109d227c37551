// Work of the configuration page with its device.
#pragma once

#include "device/work/devicework.h"

/// Work of the configuration page on the current session, the one login that CDeviceBase keeps for this page.
/// Each function cancels the running work, returns immediately and runs the operations of CDeviceFactory with
/// the same purpose on another thread; it does nothing without a factory. Before ended(), the factory emits
/// the signals of these operations, which also report failures: signalHighLevelLoginRet,
/// signalGetDeviceCapRet, signalConfirmEncodeConfig. The value of ended() is invalid unless a function states
/// it. Lives on the main thread.
class SessionWork : public DeviceWork
{
    Q_OBJECT
public:
    explicit SessionWork(QObject *parent = nullptr) : DeviceWork(parent) {}

    /// Logs in to the device at `ipport` ("address:port") for the current session. The earlier session is
    /// kept after a failure. The value of ended() is a LoginResult.
    Q_INVOKABLE void login(const QString &ipport, const QString &account, const QString &password);

    // Encode page. The values are then read by CDeviceFactory::getConfigData() with the keys of EncodeKey.

    Q_INVOKABLE void readEncoding();      ///< readEncodeChannel(), and the colours of the channel
    Q_INVOKABLE void readEncodeChannel(); ///< reads choices and values of the selected channel and stream
    /// Selects a channel (`key` is "curChannel") or a stream type ("curStreamType") by its number from 0, and
    /// reads its choices and values.
    Q_INVOKABLE void chooseEncoding(const QString &key, int index);
    /// Writes one value to the device. `key` must be a key of EncodeKey that setConfigData() writes
    /// immediately: subCurResolution.
    Q_INVOKABLE void writeEncodeValue(const QString &key, const QVariant &value);
    /// Writes the values of the selected channel with the changes of CDeviceFactory::setConfigData().
    Q_INVOKABLE void saveEncoding();

    // Image page, with the keys of CameraKey.

    /// Reads capabilities and image settings of a channel (from 0), which becomes the selected channel; -1:
    /// of the selected channel. The value of ended() is a list of bool, one for each channel: whether it has
    /// a camera. The list is empty if the device did not respond.
    Q_INVOKABLE void readImage(int channel);
    /// Selects the mode with this index in "allSwitchMode" and reads its settings.
    Q_INVOKABLE void chooseImageMode(int index);
    /// Writes values of the group `key` (a key of CameraKey) one after another. Each entry of `values` is a
    /// list of two: a setting (a key of CameraSetting) and its value. The setting is an empty string if `key`
    /// is not a group but a single value, such as "curChannelName" or "setDefault". If the device stops
    /// responding, the remaining values are not written.
    Q_INVOKABLE void writeImage(const QString &key, const QVariantList &values);

    // Names of channels.

    /// Reads the names of all channels. The value of ended() is a map of two lists with an entry for each
    /// channel: "names" (strings, null for a name that was not read) and "connected" (bool, see
    /// ChannelListKey), which is empty if the device did not respond.
    Q_INVOKABLE void readNames();
    /// Writes the name of a channel (from 0) and reads it back. The value of ended() is a map of "result" and
    /// "name", which is null after a failure or if the device does not report it. "result" is 0 on success,
    /// LoginResult::Refused, LoginResult::Upgrading, or an error of the network library if the device did not
    /// respond; -1 if there is no such channel.
    Q_INVOKABLE void writeName(int channel, const QString &name);

Q_SIGNALS:
    /// A login that this object did not make has replaced the current session. Running work was cancelled,
    /// since it used the previous session.
    void otherLogin();

protected:
    void changeFactory(CDeviceFactory *before) override;

private:
    void beginJob(const SessionJob &job);
    void noteLogin(int result);
};
