#include "device/dh/channelchoice.h"

#include "device/logging.h"

#include <QStringList>

namespace {

constexpr int streamTypes = 3;

constexpr QLatin1StringView channelNum("channelNum");
constexpr QLatin1StringView encodeChannel("curChannel");
constexpr QLatin1StringView streamType("curStreamType");
constexpr QLatin1StringView videoChannel("curVideoChannel");

} // namespace

bool ChannelChoice::isKey(const QString &key)
{
    return key == channelNum || key == encodeChannel || key == streamType || key == videoChannel;
}

QVariant ChannelChoice::value(const QString &key) const
{
    if (key == encodeChannel)
        return curChannel;
    if (key == streamType)
        return curStreamType;
    if (key == videoChannel)
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
    const int count = key == streamType ? streamTypes : qMax(1, channelCount);
    if (!isNumber || number < 0 || number >= count)
        qCWarning(logDevice) << "ChannelChoice:" << key << "cannot be" << value;
    else if (key == encodeChannel)
        curChannel = number;
    else if (key == streamType)
        curStreamType = number;
    else if (key == videoChannel)
        curVideoChannel = number;
}
