#include "device/dh/encode/encodeconfig.h"

#include "device/registry/encodekeys.h"
#include "device/store/logging.h"

#include <QCoreApplication>

namespace {

class ItemTexts
{
    Q_DECLARE_TR_FUNCTIONS(EncodeConfig)
public:
    static QStringList names()
    {
        // The last name differs in wording from that of the main stream.
        return {tr("主码流编码视频格式属性"), tr("主码流编码视频格式profile"),
                tr("主码流编码音频压缩格式"), tr("主码流编码音频格式"),
                tr("辅码流编码视频格式属性"), tr("辅码流编码视频格式profile"),
                tr("辅码流编码音频压缩格式"), tr("辅码流编码音频格式配置")};
    }
    static QString unread(const QString &name) { return tr("%1（没有读到，未写入）").arg(name); }
};

constexpr int subVideoFormat = 4; // index of the item in writeEncodeItems()

constexpr int allItems = 2 * itemsOfStream;

/// The state of a channel that was not read.
const EncodeState &unreadState()
{
    static const EncodeState state;
    return state;
}

} // namespace

EncodeConfig::EncodeConfig(const ValueTables &tables) : m_values(tables), m_tables(tables) {}

void EncodeConfig::begin(const ConfigSession &session)
{
    m_session = session;
    m_state.reset();
    m_takenItems.clear();
}

int EncodeConfig::read(const ChannelChoice &channels)
{
    m_takenItems.clear();
    EncodeState state = m_state.value_or(EncodeState());
    const EncodeReading reading =
        readEncodeState(m_session, channels.curChannel, channels.curStreamType, state);
    if (reading.isFetched && reading.isQueried)
        m_state = state;
    else if (reading.isFetched)
        m_state.reset(); // its items belong to another channel
    return reading.result;
}

void EncodeConfig::markItemsUnread()
{
    m_takenItems.clear();
    if (m_state)
        m_state->main = m_state->sub = {};
}

QVariant EncodeConfig::value(const QString &key, const ChannelChoice &channels) const
{
    if (key == EncodeKey::takenItems)
        return m_takenItems;
    const EncodeState &state = m_state ? *m_state : unreadState();
    if (key == EncodeKey::unreadItems || key == EncodeKey::unreadIndexes) {
        QStringList names;
        QVariantList indexes;
        for (const int index : state.withheldItems(channels.curStreamType)) {
            names.append(itemNames().at(index));
            indexes.append(index);
        }
        return key == EncodeKey::unreadItems ? QVariant(names) : QVariant(indexes);
    }
    return m_values.value(key, state, channels.curStreamType);
}

QString EncodeConfig::linesOf(const QList<int> &items) const
{
    const QList<int> unread = (m_state ? *m_state : unreadState()).unreadItems();
    const QStringList names = itemNames();
    QString lines;
    for (const int index : items) {
        const QString &name = names.at(index);
        lines += (unread.contains(index) ? ItemTexts::unread(name) : name) + QLatin1Char('\n');
    }
    return lines;
}

EncodeConfig::Outcome EncodeConfig::setValue(const QString &key, const QVariant &value,
                                             const ChannelChoice &channels)
{
    m_takenItems.clear();
    if (!m_state || !m_values.setValue(key, value, *m_state, channels.curStreamType)) {
        qCWarning(logDevice) << "Encode:" << key << "cannot be set to" << value;
        return {};
    }
    if (key != EncodeKey::subCurResolution)
        return {};
    Outcome outcome;
    // The devices expect the channel of the image page here, not that of the encode page.
    if (!writeSubResolution(channels.curVideoChannel)) {
        outcome.notWritten = linesOf({subVideoFormat});
        if (m_session.isDeviceAway()) { // reading would time out as well
            outcome.result = static_cast<int>(m_session.lastError());
            return outcome;
        }
    } else if (channels.curVideoChannel == channels.curChannel) {
        m_takenItems.append(subVideoFormat);
    }
    outcome.result = readEncodeCapabilities(m_session, channels.curChannel, *m_state).result;
    return outcome;
}

bool EncodeConfig::writeSubResolution(int channel)
{
    sdk::VideoFormatItem &item = m_state->sub.videoFormat;
    const std::int32_t wantedBitRate = item.bitRate;
    const auto isTaken = [this, &item, channel] {
        return m_session.writeItem(static_cast<std::uint32_t>(sdk::EncodeItem::VideoFormat), channel, item);
    };
    if (isTaken())
        return true;
    // The resolution may need another bit rate. Without a response further attempts would time out as well.
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

EncodeConfig::Outcome EncodeConfig::confirm(const ChannelChoice &channels)
{
    EncodeWriting writing;
    if (m_state)
        writing = writeEncodeItems(m_session, channels.curChannel, *m_state,
                                   m_state->missingItems(channels.curStreamType));
    const int error = writing.isDeviceAway ? static_cast<int>(m_session.lastError()) : 0;
    const EncodeState &state = m_state ? *m_state : unreadState();
    const QList<int> unread = state.withheldItems(channels.curStreamType);
    const QList<int> missing = state.missingItems(channels.curStreamType);
    QList<int> notWritten;
    m_takenItems.clear();
    for (int index = 0; index < allItems; ++index) {
        if (unread.contains(index) || writing.notTaken.contains(index))
            notWritten.append(index);
        else if (!missing.contains(index))
            m_takenItems.append(index);
    }
    return {.notWritten = linesOf(notWritten), .result = error};
}

QStringList EncodeConfig::itemNames()
{
    return ItemTexts::names();
}
