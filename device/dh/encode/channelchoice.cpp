#include "device/dh/encode/channelchoice.h"

#include "device/registry/logging.h"

#include <QStringList>

namespace {

constexpr int streamTypes = 3;

constexpr QLatin1StringView channelNumKey("channelNum");
constexpr QLatin1StringView encodeChannel("curChannel");
constexpr QLatin1StringView streamTypeKey("curStreamType");
constexpr QLatin1StringView videoChannel("curVideoChannel");

} // namespace

bool ChannelChoice::isKey(const QString &key)
{
    return key == channelNumKey || key == encodeChannel || key == streamTypeKey || key == videoChannel;
}

QVariant ChannelChoice::value(const QString &key) const
{
    if (key == encodeChannel)
        return curChannel;
    if (key == streamTypeKey)
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
    const int count = key == streamTypeKey ? streamTypes : qMax(1, channelCount);
    if (!isNumber || number < 0 || number >= count)
        qCWarning(logDevice) << "ChannelChoice:" << key << "cannot be" << value;
    else if (key == encodeChannel)
        curChannel = number;
    else if (key == streamTypeKey)
        curStreamType = number;
    else if (key == videoChannel)
        curVideoChannel = number;
}
