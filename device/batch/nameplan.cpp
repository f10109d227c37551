#include "device/batch/nameplan.h"

#include "device/models/modelkeys.h"
#include "device/registry/bytetext.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/store/devicerow.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

QVariantMap entryOf(const QString &name, const QString &title, const QString &ipport)
{
    return {{DeviceRowKey::name, name}, {RowKey::title, title}, {QString(DeviceRowKey::ipport), ipport}};
}

/// The last number of the IPv4 address; empty for an IPv6 address.
QString lastNumberOf(const QString &ipport)
{
    static const QRegularExpression ending(QStringLiteral("(\\d+):\\d+$"));
    return ending.match(ipport).captured(1);
}

} // namespace

void NamePlan::takeChannels(const QString &ipport, int count)
{
    m_ofCameras = false;
    QVariantList entries;
    for (int channel = 0; channel < count; ++channel)
        entries.append(entryOf(QString::number(channel), tr("通道 %1").arg(channel + 1), ipport));
    setEntries(entries);
}

void NamePlan::takeCameras(const QStringList &ipports)
{
    m_ofCameras = true;
    QVariantList entries;
    for (const QString &ipport : ipports)
        entries.append(entryOf(ipport, {}, ipport));
    setEntries(entries);
}

int NamePlan::countCameras(const QStringList &ipports) const
{
    return static_cast<int>(std::ranges::count_if(ipports, [this](const QString &ipport) {
        return !deviceFactory() ||
               !isRecorderType(
                   deviceFactory()->getDeviceInfo(dhFamily, ipport).value(DeviceRowKey::type).toString());
    }));
}

bool NamePlan::isRecorder(int row) const
{
    return m_ofCameras && isRecorderType(deviceAt(row).value(DeviceRowKey::type).toString());
}

QString NamePlan::nameOf(int row, int number) const
{
    // One pass, since a model may contain text that looks like a part of the pattern.
    static const QRegularExpression parts(QStringLiteral("\\{(n|model|ip4)\\}"));
    QString name;
    qsizetype taken = 0;
    for (auto found = parts.globalMatch(m_pattern); found.hasNext();) {
        const QRegularExpressionMatch part = found.next();
        name += QStringView(m_pattern).mid(taken, part.capturedStart() - taken);
        taken = part.capturedEnd();
        if (part.captured(1) == QLatin1String("n"))
            name += QString::number(number).rightJustified(m_digits, QLatin1Char('0'));
        else
            name += part.captured(1) == QLatin1String("model")
                        ? deviceAt(row).value(DeviceRowKey::model).toString()
                        : lastNumberOf(addressAndPortOf(row));
    }
    name += QStringView(m_pattern).mid(taken);
    return name.trimmed();
}

QString NamePlan::faultOfPattern() const
{
    static const QRegularExpression unknown(QStringLiteral("\\{(?!(n|model|ip4)\\})"));
    if (m_pattern.trimmed().isEmpty())
        return tr("请输入命名规则");
    if (m_pattern.contains(unknown))
        return tr("只能使用 {n}、{model} 和 {ip4}");
    const bool isTooLong = std::any_of(m_names.cbegin(), m_names.cend(), [](const QString &name) {
        return ByteText::bytes(name) > ByteText::channelNameBytes();
    });
    return isTooLong ? tr("名称过长，最多 %1 字节").arg(ByteText::channelNameBytes()) : QString();
}

bool NamePlan::isRepeated() const
{
    return rowCount() > 1 && !m_pattern.contains(QLatin1String("{n}")) &&
           !m_pattern.contains(QLatin1String("{ip4}"));
}

QStringList NamePlan::namedIdentities() const
{
    QStringList identities;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row) && !isRecorder(row))
            identities.append(identityOf(deviceAt(row)));
    }
    return identities;
}

QStringList NamePlan::names() const
{
    QStringList names;
    for (int row = 0; row < rowCount(); ++row) {
        if (isChecked(row) && !isRecorder(row))
            names.append(m_names.value(row));
    }
    return names;
}

void NamePlan::prepare()
{
    m_names.clear();
    int number = m_start;
    for (int row = 0; row < rowCount(); ++row)
        m_names.append(isRecorder(row) ? QString() : nameOf(row, number++));
    m_fault = faultOfPattern();
}

QString NamePlan::hindranceOf(int row) const
{
    return isRecorder(row) ? tr("录像机，不会执行；其通道请单独命名") : BatchPreview::hindranceOf(row);
}

BatchPreview::Judgement NamePlan::judgementOf(int row) const
{
    Judgement judgement = BatchPreview::judgementOf(row);
    if (judgement.kind != Skipped)
        judgement.action = m_names.value(row);
    return judgement;
}
