#include "device/work/sessionwork.h"

#include "device/registry/camerakeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/encodekeys.h"
#include "device/registry/mapkeys.h"

void SessionWork::changeFactory(CDeviceFactory *before)
{
    if (before)
        disconnect(before, nullptr, this, nullptr);
    if (deviceFactory())
        connect(deviceFactory(), &CDeviceFactory::signalHighLevelLoginRet, this, &SessionWork::noteLogin);
}

void SessionWork::noteLogin(int result)
{
    if (isTaking() || result != resultCode(LoginResult::Success))
        return;
    cancel();
    Q_EMIT otherLogin();
}

void SessionWork::beginJob(const SessionJob &job)
{
    if (deviceFactory())
        begin(deviceFactory()->backEnd(dhFamily)->sessionStep(job));
}

void SessionWork::login(const QString &ipport, const QString &account, const QString &password)
{
    if (deviceFactory())
        begin(deviceFactory()->backEnd(dhFamily)->loginStep(ipport, account, password));
}

void SessionWork::readEncoding()
{
    beginJob([](SessionOperations &device, const StepControl &) {
        device.getEncodeCaps();
        return QVariant();
    });
}

void SessionWork::readEncodeChannel()
{
    beginJob([](SessionOperations &device, const StepControl &) {
        device.getEncodeInfo();
        return QVariant();
    });
}

void SessionWork::chooseEncoding(const QString &key, int index)
{
    beginJob([key, index](SessionOperations &device, const StepControl &) {
        device.setConfigData(key, index, {});
        device.getEncodeInfo();
        return QVariant();
    });
}

void SessionWork::writeEncodeValue(const QString &key, const QVariant &value)
{
    beginJob([key, value](SessionOperations &device, const StepControl &) {
        device.setConfigData(key, value, {});
        return QVariant();
    });
}

void SessionWork::saveEncoding()
{
    beginJob([](SessionOperations &device, const StepControl &) {
        device.confirmConfigData();
        return QVariant();
    });
}

void SessionWork::readImage(int channel)
{
    beginJob([channel](SessionOperations &device, const StepControl &control) {
        if (channel >= 0)
            device.setConfigData(EncodeKey::curVideoChannel, channel, {});
        device.getCameraConfig();
        if (!device.isDeviceAway() && !control.shouldEnd())
            device.getVideoInByChangeChannel();
        return device.isDeviceAway() || control.shouldEnd()
                   ? QVariant(QVariantList())
                   : device.getConfigData(SessionKey::connectedChannels, {});
    });
}

void SessionWork::chooseImageMode(int index)
{
    beginJob([index](SessionOperations &device, const StepControl &) {
        device.setConfigData(CameraKey::curSwitchMode, index, {});
        device.getVideoIn();
        return QVariant();
    });
}

void SessionWork::writeImage(const QString &key, const QVariantList &values)
{
    beginJob([key, values](SessionOperations &device, const StepControl &) {
        for (const QVariant &entry : values) {
            const QVariantList pair = entry.toList();
            if (!device.isDeviceAway())
                device.setConfigData(key, pair.value(1), pair.value(0).toString());
        }
        return QVariant();
    });
}

void SessionWork::readNames()
{
    beginJob([](SessionOperations &device, const StepControl &control) {
        const QVariantList names = device.getDeviceChannelData(SessionKey::channelNames, 0);
        const QVariantList connected = device.isDeviceAway() || control.shouldEnd()
                                           ? QVariantList()
                                           : device.getDeviceChannelData(SessionKey::channelsConnected, 0);
        return QVariant(QVariantMap{{ChannelListKey::names, QVariant(names)},
                                    {ChannelListKey::connected, QVariant(connected)}});
    });
}

void SessionWork::writeName(int channel, const QString &name)
{
    beginJob([channel, name](SessionOperations &device, const StepControl &) {
        device.setConfigData(SessionKey::channelName, name, QString::number(channel));
        const QVariant result = device.getConfigData(SessionKey::channelNameResult, channel);
        const bool isTaken = result.toInt() == resultCode(LoginResult::Success);
        return QVariant(
            QVariantMap{{ResultKey::result, result},
                        {ResultKey::name,
                         isTaken ? device.getConfigData(SessionKey::channelName, channel) : QVariant()}});
    });
}
