#include "device/dh/encode/channelchoice.h"

#include "device/registry/encodekeys.h"
#include "device/store/logging.h"

#include <QStringList>

namespace {

constexpr int streamTypes = 3;

} // namespace

bool ChannelChoice::isKey(const QString &key)
{
    return key == EncodeKey::channelNum || key == EncodeKey::curChannel || key == EncodeKey::curStreamType ||
           key == EncodeKey::curVideoChannel;
}

QVariant ChannelChoice::value(const QString &key) const
{
    if (key == EncodeKey::curChannel)
        return curChannel;
    if (key == EncodeKey::curStreamType)
        return curStreamType;
    if (key == EncodeKey::curVideoChannel)
        return curVideoChannel;
    QStringList numbers;
    for (int channel = 1; channel <= channelCount; ++channel)
        numbers.append(QString::number(channel));
    return numbers;
}

void ChannelChoice::choose(const QString &key, const QVariant &value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    const int count = key == EncodeKey::curStreamType ? streamTypes : qMax(1, channelCount);
    if (!isNumber || number < 0 || number >= count)
        qCWarning(logDevice) << "ChannelChoice:" << key << "cannot be" << value;
    else if (key == EncodeKey::curChannel)
        curChannel = number;
    else if (key == EncodeKey::curStreamType)
        curStreamType = number;
    else if (key == EncodeKey::curVideoChannel)
        curVideoChannel = number;
}
