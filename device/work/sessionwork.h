#pragma once

#include "device/work/devicework.h"

/// Work of the configuration page on the current session. Each piece does the factory's operations of the
/// same requests; the factory emits their signals before ended().
class SessionWork : public DeviceWork
{
    Q_OBJECT
public:
    explicit SessionWork(QObject *parent = nullptr) : DeviceWork(parent) {}

    /// The value is a LoginResult.
    Q_INVOKABLE void login(const QString &ipport, const QString &account, const QString &password);

    Q_INVOKABLE void readEncoding();
    Q_INVOKABLE void readEncodeChannel();
    /// `key` is "curChannel" or "curStreamType". Reads what was chosen.
    Q_INVOKABLE void chooseEncoding(const QString &key, int place);
    /// Writes a value that goes to the device at once.
    Q_INVOKABLE void writeEncodeValue(const QString &key, const QVariant &value);
    Q_INVOKABLE void saveEncoding();

    /// `channel` is -1 for the one that was chosen before. The value holds for each channel whether it has a
    /// camera; empty when the device did not answer.
    Q_INVOKABLE void readImage(int channel);
    Q_INVOKABLE void chooseImageMode(int place);
    /// Writes values of a group, each as a list of sub-key and value.
    Q_INVOKABLE void writeImage(const QString &key, const QVariantList &values);

    /// The value is a map of "names" and "connected", as getDeviceChannelData() gives them.
    Q_INVOKABLE void readNames();
    /// Writes the name of a channel (from 0) and reads it back. The value is a map of "result" and "name",
    /// which is null when the device does not report it.
    Q_INVOKABLE void writeName(int channel, const QString &name);

Q_SIGNALS:
    /// Another page has logged in to a device. Work that was running is dropped: it was meant for the session
    /// that there was.
    void otherLogin();

protected:
    void changeFactory(CDeviceFactory *before) override;

private:
    void beginJob(const SessionJob &job);
    void noteLogin(int result);
};
