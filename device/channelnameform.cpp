#include "device/channelnameform.h"

#include "device/bytetext.h"
#include "device/devicefactory.h"
#include "device/loginresult.h"

#include <algorithm>

namespace {

const QString family = QStringLiteral("dh");

} // namespace

ChannelNameForm::ChannelNameForm(QObject *parent) : DialogRows(parent) {}

CDeviceFactory *ChannelNameForm::deviceFactory() const
{
    return m_deviceFactory;
}

void ChannelNameForm::setDeviceFactory(CDeviceFactory *deviceFactory)
{
    if (m_deviceFactory == deviceFactory)
        return;
    m_deviceFactory = deviceFactory;
    Q_EMIT deviceFactoryChanged();
}

int ChannelNameForm::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ChannelNameForm::changedCount() const
{
    return static_cast<int>(
        std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row &row) { return row.isChanged(); }));
}

int ChannelNameForm::failedCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row &row) { return hasFailed(row.lastWrite); }));
}

int ChannelNameForm::untoldCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row &row) { return row.isConnected && !row.isTold; }));
}

void ChannelNameForm::read()
{
    if (!m_deviceFactory)
        return;
    const QVariantList names =
        m_deviceFactory->getDeviceChannelData(family, QStringLiteral("channelNames"), 0);
    const QVariantList connected =
        m_deviceFactory->getDeviceChannelData(family, QStringLiteral("channelsConnected"), 0);
    beginResetModel();
    m_rows.clear();
    for (qsizetype channel = 0; channel < names.size(); ++channel) {
        const QString name = names.at(channel).toString();
        m_rows.append({.saved = name,
                       .name = name,
                       .isTold = names.at(channel).isValid(),
                       .isConnected = connected.value(channel, true).toBool()});
    }
    endResetModel();
    Q_EMIT changed();
}

void ChannelNameForm::set(int row, const QString &typed)
{
    change(row, ByteText::withoutInvisible(typed));
}

void ChannelNameForm::change(int row, const QString &name)
{
    if (row < 0 || row >= m_rows.size() || m_rows.at(row).name == name)
        return;
    m_rows[row].name = name;
    m_rows[row].lastWrite = None;
    tellOf(row);
}

void ChannelNameForm::takeBack(int row)
{
    if (row >= 0 && row < m_rows.size())
        change(row, m_rows.at(row).saved); // as the device has it, whatever is in it
}

void ChannelNameForm::cut(int row)
{
    if (row >= 0 && row < m_rows.size())
        change(row, ByteText::cutTo(m_rows.at(row).name, ByteText::channelNameBytes()).trimmed());
}

QList<int> ChannelNameForm::changedRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_rows.at(row).isChanged())
            rows.append(row);
    }
    return rows;
}

int ChannelNameForm::firstFaulty() const
{
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [this](const Row &row) { return isFaulty(troubleOf(row)); });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
}

ChannelNameForm::Trouble ChannelNameForm::write(int row)
{
    if (!m_deviceFactory || row < 0 || row >= m_rows.size())
        return None;
    const QString name = m_rows.at(row).name.trimmed();
    m_deviceFactory->setConfigData(family, QStringLiteral("channelName"), name, QString::number(row));
    const int result =
        m_deviceFactory->getConfigData(family, QStringLiteral("channelNameResult"), row).toInt();
    Row &written = m_rows[row];
    if (result == resultCode(LoginResult::Success)) {
        const QVariant told = m_deviceFactory->getConfigData(family, QStringLiteral("channelName"), row);
        written.saved = written.name = told.isValid() ? told.toString() : name;
        written.isTold = true;
        written.lastWrite = written.saved == name ? None : Different;
    } else if (result == resultCode(LoginResult::Upgrading)) {
        written.lastWrite = Upgrading;
    } else {
        written.lastWrite = isDeviceAway(static_cast<std::uint32_t>(result)) ? Unanswered : Refused;
    }
    tellOf(row);
    return written.lastWrite;
}

void ChannelNameForm::endSaving()
{
    if (m_deviceFactory)
        m_deviceFactory->setConfigData(family, QStringLiteral("channelNamesSaved"), true);
}

ChannelNameForm::Trouble ChannelNameForm::troubleOf(const Row &row) const
{
    if (!row.isChanged() && row.lastWrite == None)
        return row.isTold ? None : Unknown;
    if (row.isChanged() && row.name.trimmed().isEmpty())
        return Empty;
    // Blanks at the ends are not written.
    if (row.isChanged() && ByteText::bytes(row.name.trimmed()) > ByteText::channelNameBytes())
        return TooLong;
    return row.lastWrite;
}

QVariantMap ChannelNameForm::valuesOf(int row) const
{
    const Row &channel = m_rows.at(row);
    return {{QStringLiteral("identity"), QString::number(row)},
            {QStringLiteral("num"), row + 1},
            {QStringLiteral("connected"), channel.isConnected},
            {QStringLiteral("name"), channel.name},
            {QStringLiteral("saved"), channel.saved},
            {QStringLiteral("changed"), channel.isChanged()},
            {QStringLiteral("bytes"), ByteText::bytes(channel.name.trimmed())},
            {QStringLiteral("trouble"), static_cast<int>(troubleOf(channel))}};
}

bool ChannelNameForm::isInConflict(int row) const
{
    const Trouble trouble = troubleOf(m_rows.at(row));
    return isFaulty(trouble) || hasFailed(trouble);
}

void ChannelNameForm::tellOf(int row)
{
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT changed();
}
