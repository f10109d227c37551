#include "device/channelnameform.h"

#include "device/bytetext.h"
#include "device/devicefactory.h"
#include "device/loginresult.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

const QString family = QStringLiteral("dh");

/// The page shows that a saving has begun before the first request blocks it.
constexpr std::chrono::milliseconds firstTurn{32};
constexpr std::chrono::milliseconds nextTurn{1};

} // namespace

ChannelNameForm::ChannelNameForm(QObject *parent) : DialogRows(parent)
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &ChannelNameForm::saveNext);
}

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
    stopSaving();
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

void ChannelNameForm::save()
{
    if (isSaving())
        return;
    for (int row = 0; row < rowCount(); ++row) {
        if (m_rows.at(row).isChanged())
            m_rowsToSave.append(row);
    }
    if (!isSaving())
        return;
    m_saveTurns = 0;
    Q_EMIT savingChanged();
    m_turn.start(firstTurn);
}

void ChannelNameForm::saveNext()
{
    const Trouble trouble = write(m_rowsToSave.at(m_saveTurns++));
    // A request may run events in which the saving is stopped.
    if (!isSaving())
        return;
    if (trouble == Unanswered || trouble == Upgrading || m_saveTurns == m_rowsToSave.size()) {
        finishSaving();
        return;
    }
    Q_EMIT savingChanged();
    m_turn.start(nextTurn);
}

void ChannelNameForm::stopSaving()
{
    if (isSaving())
        finishSaving();
}

void ChannelNameForm::finishSaving()
{
    m_turn.stop();
    const QList<int> rows = std::exchange(m_rowsToSave, {});
    const auto tried = rows.first(m_saveTurns);
    const auto isWritten = [this](int row) {
        return !hasFailed(m_rows.at(row).lastWrite);
    };
    const auto failed = std::find_if_not(tried.cbegin(), tried.cend(), isWritten);
    Q_EMIT savingChanged();
    Q_EMIT saved(static_cast<int>(rows.size()),
                 static_cast<int>(std::count_if(tried.cbegin(), tried.cend(), isWritten)),
                 failed == tried.cend() ? -1 : *failed);
}

int ChannelNameForm::savingRow() const
{
    return m_rowsToSave.value(m_saveTurns, -1);
}

double ChannelNameForm::savingProgress() const
{
    return isSaving() ? static_cast<double>(m_saveTurns) / static_cast<double>(m_rowsToSave.size()) : 0;
}

void ChannelNameForm::reportSaving()
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
