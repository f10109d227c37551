#include "commandline/settings.h"

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QString plainChoice(const QString &text)
{
    QString plain = text.toLower();
    for (const QChar sign : {u'*', u'_', u'\u00d7'})
        plain.replace(sign, u'x');
    plain.remove(u' ').remove(u'.');
    return plain;
}

QString settingLines(const QString &title, const std::vector<SettingInfo> &settings)
{
    QString text = u"Settings of \"%1\":\n"_s.arg(title);
    for (const SettingInfo &setting : settings)
        text += u"  "_s + setting.name.leftJustified(26) + setting.values + u'\n';
    return text;
}

} // namespace

std::optional<Assignment> assignmentFrom(const QString &operand)
{
    const qsizetype equals = operand.indexOf(u'=');
    if (equals <= 0)
        return std::nullopt;
    return Assignment{.name = operand.left(equals).trimmed(), .value = operand.sliced(equals + 1)};
}

bool selectChannel(SessionOperations &device, QLatin1StringView key, int channel)
{
    device.setConfigData(key, channel, {});
    return device.getConfigData(key, {}).toInt() == channel;
}

std::optional<bool> flagFrom(const QString &text)
{
    if (text == "on"_L1 || text == "1"_L1 || text == "yes"_L1 || text == "true"_L1)
        return true;
    if (text == "off"_L1 || text == "0"_L1 || text == "no"_L1 || text == "false"_L1)
        return false;
    return std::nullopt;
}

QString flagText(bool flag)
{
    return flag ? u"on"_s : u"off"_s;
}

qsizetype choiceIndex(const QStringList &choices, const QString &text)
{
    for (qsizetype index = 0; index < choices.size(); ++index) {
        if (plainChoice(choices.at(index)) == plainChoice(text))
            return index;
    }
    return -1;
}

QString settingsHelp(bool writable)
{
    QString text = settingLines(u"encode"_s, encodeSubject().names()) + u'\n' +
                   settingLines(u"image"_s, imageSubject().names()) + u'\n';
    if (writable)
        return text + settingLines(u"system"_s, systemSettings());
    return text + u"Settings of \"system\": name, time, and the properties that the device reports.\n"_s;
}

} // namespace commandline
