#include "device/dh/encodeconfig.h"

#include "device/logging.h"

#include <QCoreApplication>

namespace {

class ItemTexts
{
    Q_DECLARE_TR_FUNCTIONS(EncodeConfig)
public:
    static QStringList names()
    {
        // The last one is worded otherwise than the main stream's.
        return {tr("主码流编码视频格式属性"), tr("主码流编码视频格式profile"),
                tr("主码流编码音频压缩格式"), tr("主码流编码音频格式"),
                tr("辅码流编码视频格式属性"), tr("辅码流编码视频格式profile"),
                tr("辅码流编码音频压缩格式"), tr("辅码流编码音频格式配置")};
    }
};

constexpr int subVideoFormat = 4; // its place among the items

/// A line for each.
QString namesOf(const QList<int> &items)
{
    const QStringList names = ItemTexts::names();
    QString text;
    for (const int place : items)
        text += names.at(place) + QLatin1Char('\n');
    return text;
}

} // namespace

EncodeConfig::EncodeConfig(const ValueTables &tables, const ChannelChoice &channels)
    : m_values(tables), m_tables(tables), m_channels(channels)
{
}

void EncodeConfig::begin(const ConfigSession &session)
{
    m_session = session;
    m_state.reset();
    m_takenItems.clear();
}

int EncodeConfig::read()
{
    m_takenItems.clear();
    EncodeState state = m_state.value_or(EncodeState());
    const EncodeReading reading =
        readEncodeState(m_session, m_channels.curChannel, m_channels.curStreamType, state);
    if (reading.isFetched && reading.isAsked)
        m_state = state;
    else if (reading.isFetched)
        m_state.reset(); // its items were not read: what is there is another channel's
    return reading.result;
}

QVariant EncodeConfig::value(const QString &key) const
{
    if (key == takenItemsKey)
        return m_takenItems;
    static const EncodeState nothing;
    return m_values.value(key, m_state ? *m_state : nothing, m_channels.curStreamType);
}

EncodeConfig::Outcome EncodeConfig::setValue(const QString &key, const QVariant &value)
{
    m_takenItems.clear();
    if (!m_state || !m_values.setValue(key, value, *m_state)) {
        qCWarning(logDevice) << "Encode:" << key << "cannot be set to" << value;
        return {};
    }
    if (key != QLatin1String("subCurResolution"))
        return {};
    const bool isTaken = writeSubResolution();
    if (isTaken && m_channels.curVideoChannel == m_channels.curChannel)
        m_takenItems.append(subVideoFormat);
    return {.refused = isTaken ? QString() : namesOf({subVideoFormat}),
            .result = readEncodeCapabilities(m_session, m_channels.curChannel, *m_state).result};
}

bool EncodeConfig::writeSubResolution()
{
    sdk::VideoFormatItem &item = m_state->sub.videoFormat;
    const std::int32_t wantedBitRate = item.bitRate;
    const auto isTaken = [this, &item] {
        // To the channel of the other page: that is the one that devices are set up with here.
        return m_session.writeItem(static_cast<std::uint32_t>(sdk::EncodeItem::VideoFormat),
                                   m_channels.curVideoChannel, item);
    };
    if (isTaken())
        return true;
    // The resolution may need another bit rate. A device that is away gets no further tries, each of which
    // would wait.
    for (const std::int32_t step : m_tables.BitRateSteps) {
        if (m_session.isDeviceAway())
            break;
        item.bitRate = step;
        if (isTaken())
            return true;
    }
    item.bitRate = wantedBitRate;
    qCWarning(logDevice) << "Encode: the sub stream's size" << item.width << item.height
                         << "is refused at every bit rate, error" << m_session.lastError();
    return false;
}

QString EncodeConfig::confirm()
{
    // Without a state nothing can be written, and everything counts as refused.
    QList<int> refused = {0, 1, 2, 3, 4, 5, 6, 7};
    if (m_state)
        refused = writeEncodeItems(m_session, m_channels.curChannel, m_state->main, m_state->sub);
    m_takenItems.clear();
    for (int place = 0; place < itemNames().size(); ++place) {
        if (!refused.contains(place))
            m_takenItems.append(place);
    }
    return namesOf(refused);
}

QStringList EncodeConfig::itemNames()
{
    return ItemTexts::names();
}
