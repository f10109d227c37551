#include "device/forms/channelnameform.h"

#include "device/models/modelkeys.h"
#include "device/registry/bytetext.h"
#include "device/registry/loginresult.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

#include <algorithm>
#include <utility>

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

int ChannelNameForm::unknownCount() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(),
                                          [](const Row &row) { return row.isConnected && !row.isReported; }));
}

void ChannelNameForm::load(const QVariantList &names, const QVariantList &connected)
{
    cancelSaving();
    beginResetModel();
    m_rows.clear();
    for (qsizetype channel = 0; channel < names.size(); ++channel) {
        const QString name = names.at(channel).toString();
        m_rows.append({.saved = name,
                       .name = name,
                       .isReported = names.at(channel).isValid(),
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
    notifyRowChanged(row);
}

void ChannelNameForm::setNames(const QStringList &channels, const QStringList &names)
{
    for (qsizetype position = 0; position < channels.size(); ++position)
        set(channels.at(position).toInt(), names.value(position));
}

void ChannelNameForm::restoreName(int row)
{
    if (row >= 0 && row < m_rows.size())
        change(row, m_rows.at(row).saved); // unfiltered: exactly the name on the device
}

void ChannelNameForm::truncate(int row)
{
    if (row >= 0 && row < m_rows.size())
        change(row, ByteText::truncated(m_rows.at(row).name, ByteText::channelNameBytes()).trimmed());
}

int ChannelNameForm::firstFaulty() const
{
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(),
                                    [this](const Row &row) { return isFaulty(troubleOf(row)); });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
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
    m_finishedRows = 0;
    m_writtenRows = 0;
    m_failedRow = -1;
    requestNext();
}

void ChannelNameForm::requestNext()
{
    const int row = savingRow();
    Q_EMIT savingChanged();
    if (row != savingRow()) // a receiver of savingChanged() stopped the save
        return;
    m_isWriting = true;
    const QString name = m_rows.at(row).name.trimmed();
    m_rows[row].sent = name;
    Q_EMIT writeRequested(row, name);
}

void ChannelNameForm::takeWritten(int row, int result, const QVariant &name)
{
    if (row < 0 || row >= m_rows.size())
        return;
    Row &written = m_rows[row];
    if (result == resultCode(LoginResult::Success)) {
        const QString present = written.name.trimmed();
        const QString sent = written.sent.value_or(present); // none if load() has replaced the rows
        written.saved = name.isValid() ? name.toString() : sent;
        written.isReported = true;
        const bool isEdited = present != sent; // while the request was under way
        if (!isEdited)
            written.name = written.saved;
        written.lastWrite = isEdited || written.saved == sent ? None : Different;
    } else if (result == resultCode(LoginResult::Upgrading)) {
        written.lastWrite = Upgrading;
    } else {
        written.lastWrite = isDeviceAway(static_cast<std::uint32_t>(result)) ? NoResponse : Refused;
    }
    const Trouble trouble = written.lastWrite;
    notifyRowChanged(row);
    if (row != savingRow())
        return;
    m_isWriting = false;
    ++m_finishedRows;
    if (!hasFailed(trouble))
        ++m_writtenRows;
    else if (m_failedRow < 0)
        m_failedRow = row;
    if (m_isStopping || trouble == NoResponse || trouble == Upgrading ||
        m_finishedRows == m_rowsToSave.size())
        finishSaving();
    else
        requestNext();
}

void ChannelNameForm::stopSaving()
{
    m_isStopping = m_isWriting;
    if (!m_isWriting)
        cancelSaving();
}

void ChannelNameForm::cancelSaving()
{
    if (isSaving())
        finishSaving();
}

void ChannelNameForm::finishSaving()
{
    m_isWriting = m_isStopping = false;
    const QList<int> rows = std::exchange(m_rowsToSave, {});
    Q_EMIT savingChanged();
    Q_EMIT saved(static_cast<int>(rows.size()), m_writtenRows, m_failedRow);
}

int ChannelNameForm::savingRow() const
{
    return m_rowsToSave.value(m_finishedRows, -1);
}

double ChannelNameForm::savingProgress() const
{
    return isSaving() ? static_cast<double>(m_finishedRows) / static_cast<double>(m_rowsToSave.size()) : 0;
}

ChannelNameForm::Trouble ChannelNameForm::troubleOf(const Row &row) const
{
    if (!row.isChanged() && row.lastWrite == None)
        return row.isReported ? None : Unknown;
    if (row.isChanged() && row.name.trimmed().isEmpty())
        return Empty;
    // Spaces at the ends are not written.
    if (row.isChanged() && ByteText::bytes(row.name.trimmed()) > ByteText::channelNameBytes())
        return TooLong;
    return row.lastWrite;
}

QVariantMap ChannelNameForm::valuesOf(int row) const
{
    const Row &channel = m_rows.at(row);
    return {{RowKey::identity, QString::number(row)},
            {DeviceRowKey::num, row + 1},
            {ChannelKey::connected, channel.isConnected},
            {ChannelKey::name, channel.name},
            {RowKey::saved, channel.saved},
            {RowKey::changed, channel.isChanged()},
            {RowKey::bytes, ByteText::bytes(channel.name.trimmed())},
            {RowKey::trouble, static_cast<int>(troubleOf(channel))}};
}

bool ChannelNameForm::isInConflict(int row) const
{
    const Trouble trouble = troubleOf(m_rows.at(row));
    return isFaulty(trouble) || hasFailed(trouble);
}

void ChannelNameForm::notifyRowChanged(int row)
{
    Q_EMIT dataChanged(index(row), index(row));
    Q_EMIT changed();
}
