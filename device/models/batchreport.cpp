#include "device/models/batchreport.h"

#include <algorithm>
#include <utility>

BatchReport::BatchReport(QObject *parent) : QObject(parent) {}

void BatchReport::begin(const QStringList &devices)
{
    m_entries.clear();
    m_indexesByDevice.clear();
    m_entries.reserve(devices.size());
    m_indexesByDevice.reserve(devices.size());
    for (const QString &device : devices) {
        m_indexesByDevice[device].append(m_entries.size());
        m_entries.append({.device = device});
    }
    m_counts = {{NotDone, total()}};
    Q_EMIT changed();
}

void BatchReport::note(const QString &device, int result)
{
    if (take(device, result))
        Q_EMIT changed();
}

void BatchReport::note(const QStringList &devices, const QList<int> &results)
{
    bool isChanged = false;
    for (qsizetype index = 0; index < devices.size(); ++index)
        isChanged = take(devices.at(index), results.at(index)) || isChanged;
    if (isChanged)
        Q_EMIT changed();
}

bool BatchReport::take(const QString &device, int result)
{
    const QList<qsizetype> indexes = m_indexesByDevice.value(device);
    const auto index = std::find_if(indexes.cbegin(), indexes.cend(), [this](qsizetype other) {
        return m_entries.at(other).result == NotDone || m_entries.at(other).result == Waiting;
    });
    if (index == indexes.cend())
        return false;
    setResult(*index, result);
    return true;
}

void BatchReport::setResult(qsizetype index, int result)
{
    --m_counts[std::exchange(m_entries[index].result, result)];
    ++m_counts[result];
}

QStringList BatchReport::devicesWith(int result) const
{
    QStringList devices;
    for (const Entry &entry : m_entries) {
        if (entry.result == result)
            devices.append(entry.device);
    }
    return devices;
}

QStringList BatchReport::devicesNotSucceeded() const
{
    QStringList devices;
    for (const Entry &entry : m_entries) {
        if (entry.result != Succeeded)
            devices.append(entry.device);
    }
    return devices;
}

QStringList BatchReport::cancelWaiting()
{
    QStringList devices = devicesWith(Waiting);
    for (qsizetype index = 0; index < m_entries.size(); ++index) {
        if (m_entries.at(index).result == Waiting)
            setResult(index, NotDone);
    }
    if (!devices.isEmpty())
        Q_EMIT changed();
    return devices;
}

int BatchReport::skipped() const
{
    int count = 0;
    for (auto result = m_counts.cbegin(); result != m_counts.cend(); ++result)
        count += isSkipped(result.key()) ? result.value() : 0;
    return count;
}

QString BatchReport::summaryWith(const QString &notDoneText) const
{
    QStringList parts;
    if (succeeded() > 0)
        parts.append(tr("%n 台设备成功", "", succeeded()));
    if (waiting() > 0)
        parts.append(tr("%n 台设备等待新密码", "", waiting()));
    if (failed() > 0)
        parts.append(tr("%n 台设备失败", "", failed()));
    if (skipped() > 0)
        parts.append(tr("%n 台设备已跳过", "", skipped()));
    if (notDone() > 0)
        parts.append(notDoneText);
    return parts.join(tr("，"));
}

QString BatchReport::summary() const
{
    return summaryWith(tr("%n 台设备未执行", "", notDone()));
}

QString BatchReport::summaryOfRunning() const
{
    return summaryWith(tr("%n 台设备等待执行", "", notDone()));
}
