#include "device/forms/encodeform.h"

#include "device/forms/formkeys.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/encodekeys.h"
#include "device/registry/loginresult.h"
#include "sdk/neterror.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

/// The indexes (in the stream) of the configuration items that a setting is written with.
QList<int> itemsOf(const QString &field)
{
    QList<int> items = {static_cast<int>(encodeItemIndexOf(field).value_or(EncodeItemIndex::VideoFormat))};
    if (field == EncodeKey::curEncodeMode)
        items.append(static_cast<int>(EncodeItemIndex::VideoProfile));
    return items;
}

QList<int> indexesOf(const QVariant &list)
{
    QList<int> indexes;
    const QVariantList values = list.toList();
    for (const QVariant &index : values)
        indexes.append(index.toInt());
    return indexes;
}

/// The display name of a choice: "2688*1520" as "2688 × 1520", "G711a" as "G.711A".
QString shownName(const QString &choice)
{
    static const QHash<QString, QString> names = {
        {QStringLiteral("G711a"), QStringLiteral("G.711A")},
        {QStringLiteral("G711u"), QStringLiteral("G.711U")},
        {QStringLiteral("G7221"), QStringLiteral("G.722.1")},
        {QStringLiteral("G723_53"), QStringLiteral("G.723 (5.3 kbit/s)")},
        {QStringLiteral("G723_63"), QStringLiteral("G.723 (6.3 kbit/s)")},
        {QStringLiteral("G726"), QStringLiteral("G.726")},
        {QStringLiteral("G729"), QStringLiteral("G.729")},
        {QStringLiteral("H263"), QStringLiteral("H.263")},
        {QStringLiteral("H264"), QStringLiteral("H.264")},
        {QStringLiteral("MPEG2_Layer2"), QStringLiteral("MPEG2 Layer 2")},
        {QStringLiteral("1_2M"), QStringLiteral("1.2M")},
        {QStringLiteral("1_3M"), QStringLiteral("1.3M")},
        {QStringLiteral("5_0M"), QStringLiteral("5.0M")},
    };
    static const QRegularExpression size(QStringLiteral("^(\\d+)[*_](\\d+)$"));
    const QRegularExpressionMatch match = size.match(choice);
    if (match.hasMatch())
        return match.captured(1) + QStringLiteral(" \u00d7 ") + match.captured(2);
    return names.value(choice, choice);
}

QVariantMap setting(const QString &key, bool isChanged)
{
    return {{SettingKey::key, key},
            {SettingKey::changed, isChanged},
            {SettingKey::choices, QStringList()},
            {SettingKey::names, QStringList()},
            {SettingKey::index, -1},
            {SettingKey::value, 0},
            {SettingKey::minimum, 0},
            {SettingKey::maximum, 0},
            {SettingKey::usable, true}};
}

} // namespace

CDeviceFactory *EncodeForm::deviceFactory() const
{
    return m_deviceFactory;
}

void EncodeForm::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
    read(); // mainStream and subStream always have all keys
}

void EncodeForm::read()
{
    m_read.clear();
    m_isReading = true;
    fetch();
    m_isReading = false;
}

bool EncodeForm::isDeviceAway(int result)
{
    return isSessionLost(static_cast<std::uint32_t>(result));
}

QString EncodeForm::failureName(int result)
{
    if (result == resultCode(LoginResult::Upgrading)) // no request was sent
        return resultName(result);
    constexpr std::uint32_t highBit = 0x80000000;
    const auto error = static_cast<std::uint32_t>(result) | highBit;
    if (loginResultOf(error) == LoginResult::SessionEnded)
        return resultName(resultCode(LoginResult::SessionEnded));
    if (isDeviceAway(result))
        return tr("设备没有应答");
    switch (static_cast<sdk::NetError>(error)) {
    case sdk::NetError::NotSupported:
        return tr("设备不支持此操作");
    case sdk::NetError::DeviceBusy:
        return tr("设备正忙");
    default:
        return tr("设备拒绝了此操作（错误 %1）").arg(error, 0, 16);
    }
}

void EncodeForm::takeSaved()
{
    fetch();
}

void EncodeForm::set(const QString &key, const QVariant &value)
{
    if (m_deviceFactory)
        m_deviceFactory->setConfigData(dhFamily, key, value);
    fetch();
}

void EncodeForm::fetch()
{
    m_changedCount = 0;
    m_takenItems = indexesOf(value(EncodeKey::takenItems));
    m_unreadIndexes = indexesOf(value(EncodeKey::unreadIndexes));
    m_channels = value(EncodeKey::channelNum).toStringList();
    if (m_channels.isEmpty()) // a device that reports no channels has one
        m_channels.append(QStringLiteral("1"));
    m_channel = value(EncodeKey::curChannel).toInt();
    m_streamTypes = value(EncodeKey::allStreamType).toStringList();
    const QVariant offeredTypes = value(EncodeKey::offeredStreamTypes);
    if (offeredTypes.isValid())
        m_streamTypes.resize(std::min(m_streamTypes.size(), offeredTypes.value<qsizetype>()));
    m_streamType = value(EncodeKey::curStreamType).toInt();
    m_isComplete = !value(EncodeKey::encodeMode).toStringList().isEmpty() &&
                   !value(EncodeKey::resolution).toStringList().isEmpty();
    m_unreadItems = value(EncodeKey::unreadItems).toStringList();
    m_subStreamTypes = value(encodeKey(true, EncodeKey::allStreamType)).toStringList();
    m_main = stream(false);
    m_sub = stream(true);
    Q_EMIT changed();
}

QVariant EncodeForm::value(const QString &key) const
{
    return m_deviceFactory ? m_deviceFactory->getConfigData(dhFamily, key) : QVariant();
}

bool EncodeForm::isTaken(const QString &key) const
{
    const StreamKey parts = splitEncodeKey(key);
    QList<int> indexes = itemsOf(parts.field);
    for (int &index : indexes)
        index += parts.isSub ? itemsOfStream : 0;
    // An item that was not read is not written either.
    indexes.removeIf([this](int index) { return m_unreadIndexes.contains(index); });
    return !indexes.isEmpty() && std::all_of(indexes.begin(), indexes.end(),
                                             [this](int index) { return m_takenItems.contains(index); });
}

bool EncodeForm::noteChange(const QString &key, const QVariant &value)
{
    if (m_isReading || isTaken(key))
        m_read.insert(key, value);
    const bool isChanged = m_read.value(key) != value;
    m_changedCount += isChanged ? 1 : 0;
    return isChanged;
}

QVariantMap EncodeForm::choice(const QString &list, const QString &current)
{
    QStringList choices = value(list).toStringList();
    const QVariant shown = value(current);
    const QString text = shown.toString();
    QVariantMap map = setting(current, noteChange(current, text));
    const bool isOffered = !choices.isEmpty();
    // The device may have a value that it does not list as supported. It remains selectable.
    for (const QString &own : {m_read.value(current).toString(), text}) {
        if (!own.isEmpty() && !choices.contains(own))
            choices.append(own);
    }
    const bool isOnly = std::all_of(choices.cbegin(), choices.cend(),
                                    [&text](const QString &choice) { return choice == text; });
    map.insert(SettingKey::usable, shown.isValid() && isOffered && !isOnly);
    map.insert(SettingKey::choices, choices);
    QStringList names;
    std::transform(choices.cbegin(), choices.cend(), std::back_inserter(names), shownName);
    map.insert(SettingKey::names, names);
    map.insert(SettingKey::index, choices.indexOf(text));
    return map;
}

QVariantMap EncodeForm::bitRate(const QString &list, const QString &current, const QString &rate)
{
    const QStringList choices = value(list).toStringList();
    const int kilobits = value(rate).toInt();
    QVariantMap map = setting(current, noteChange(current, kilobits));
    const QVariant index = value(current);
    if (!index.isValid()) {
        map.insert(SettingKey::usable, false);
        return map;
    }
    const bool isStep = index.toInt() >= 0 && index.toInt() < choices.size();
    map.insert(SettingKey::choices, choices);
    // The last entry is "custom": any rate that is not in the list.
    map.insert(SettingKey::index, isStep ? index.toInt() : static_cast<int>(choices.size()) - 1);
    map.insert(SettingKey::value, kilobits);
    map.insert(SettingKey::usable, !choices.isEmpty());
    return map;
}

QVariantMap EncodeForm::number(const QString &key, int minimum, int maximum)
{
    const QVariant shown = value(key);
    const int current = shown.isValid() ? shown.toInt() : minimum - 1;
    QVariantMap map = setting(key, noteChange(key, current));
    map.insert(SettingKey::value, current);
    map.insert(SettingKey::minimum, minimum);
    map.insert(SettingKey::maximum, qMax(maximum, current));
    map.insert(SettingKey::usable, shown.isValid() && maximum > minimum);
    return map;
}

QVariantMap EncodeForm::stream(bool isSub)
{
    const auto key = [isSub](QLatin1StringView field) {
        return encodeKey(isSub, field);
    };
    constexpr int bestQuality = 6;
    QVariantMap map = {
        {EncodeKey::encodeMode, choice(key(EncodeKey::encodeMode), key(EncodeKey::curEncodeMode))},
        {EncodeKey::resolution, choice(key(EncodeKey::resolution), key(EncodeKey::curResolution))},
        {EncodeSetting::control, number(key(EncodeKey::bitstreamControl), 0, 1)},
        {EncodeKey::bitRate,
         bitRate(key(EncodeKey::bitStream), key(EncodeKey::curBitStream), key(EncodeKey::bitRate))},
        {EncodeKey::frameRate,
         number(key(EncodeKey::frameRate), 1, value(key(EncodeKey::frameRateMax)).toInt())},
        {EncodeKey::quality, number(key(EncodeKey::quality), 1, bestQuality)},
        {EncodeKey::audioEnable, number(key(EncodeKey::audioEnable), 0, 1)},
        {EncodeKey::audioCompression,
         choice(key(EncodeKey::audioCompression), key(EncodeKey::curAudioCompression))},
        {EncodeKey::samplingFrequency,
         choice(key(EncodeKey::samplingFrequency), key(EncodeKey::curSamplingFrequency))},
    };
    // The video of the main stream cannot be switched off.
    map.insert(EncodeKey::videoEnable,
               isSub ? number(key(EncodeKey::videoEnable), 0, 1) : setting(QString(), false));
    const QStringList missing = value(key(EncodeKey::missingSettings)).toStringList();
    map.insert(StreamFormKey::exists, !missing.contains(EncodeSetting::stream));
    map.insert(StreamFormKey::hasAudio, !missing.contains(EncodeSetting::audio));
    for (const QLatin1StringView name :
         {EncodeSetting::control, EncodeKey::audioEnable, EncodeKey::videoEnable}) {
        if (!missing.contains(name))
            continue;
        QVariantMap lacked = map.value(name).toMap();
        lacked.insert(SettingKey::usable, false);
        map.insert(name, lacked);
    }
    return map;
}
