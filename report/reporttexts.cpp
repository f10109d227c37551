#include "report/reporttexts.h"

#include "device/batch/batchplan.h"
#include "device/registry/camerakeys.h"
#include "device/registry/mapkeys.h"
#include "device/registry/systemkeys.h"

#include <array>

namespace {

struct ImageSettingText
{
    QLatin1StringView group;
    const char *source;
};

/// By group of settings.
constexpr std::array imageSettingTexts = {
    ImageSettingText{CameraKey::sharpness, QT_TRANSLATE_NOOP("ReportTexts", "锐度")},
    ImageSettingText{CameraKey::mirror, QT_TRANSLATE_NOOP("ReportTexts", "镜像")},
    ImageSettingText{CameraKey::stable, QT_TRANSLATE_NOOP("ReportTexts", "防抖")},
    ImageSettingText{CameraKey::exposure, QT_TRANSLATE_NOOP("ReportTexts", "曝光")},
    ImageSettingText{CameraKey::backMode, QT_TRANSLATE_NOOP("ReportTexts", "背光")},
    ImageSettingText{CameraKey::whiteBalance, QT_TRANSLATE_NOOP("ReportTexts", "白平衡")},
    ImageSettingText{CameraKey::dayNight, QT_TRANSLATE_NOOP("ReportTexts", "日夜模式")},
    ImageSettingText{CameraKey::inDefog, QT_TRANSLATE_NOOP("ReportTexts", "透雾")},
    ImageSettingText{CameraKey::lightControl, QT_TRANSLATE_NOOP("ReportTexts", "补光灯")},
    ImageSettingText{CameraKey::lightControlEx, QT_TRANSLATE_NOOP("ReportTexts", "补光灯")},
    ImageSettingText{CameraKey::curDayNightMode, QT_TRANSLATE_NOOP("ReportTexts", "日夜模式")},
    ImageSettingText{CameraKey::curBackLightMode, QT_TRANSLATE_NOOP("ReportTexts", "背光")},
    ImageSettingText{CameraKey::curBrightness, QT_TRANSLATE_NOOP("ReportTexts", "亮度")},
    ImageSettingText{CameraKey::curContrast, QT_TRANSLATE_NOOP("ReportTexts", "对比度")},
    ImageSettingText{CameraKey::curSaturation, QT_TRANSLATE_NOOP("ReportTexts", "饱和度")},
    ImageSettingText{CameraSetting::brightnessSlider, QT_TRANSLATE_NOOP("ReportTexts", "亮度")},
    ImageSettingText{CameraSetting::contrastSlider, QT_TRANSLATE_NOOP("ReportTexts", "对比度")},
    ImageSettingText{CameraSetting::saturationSlider, QT_TRANSLATE_NOOP("ReportTexts", "饱和度")},
    ImageSettingText{CameraSetting::hue, QT_TRANSLATE_NOOP("ReportTexts", "色调")},
    ImageSettingText{CameraSetting::gamma, QT_TRANSLATE_NOOP("ReportTexts", "伽马")},
};

struct WorkText
{
    QLatin1StringView work;
    const char *source;
};

constexpr std::array workTexts = {
    WorkText{QLatin1StringView("changeAddress"), QT_TRANSLATE_NOOP("ReportTexts", "修改IP地址")},
    WorkText{QLatin1StringView("setTime"), QT_TRANSLATE_NOOP("ReportTexts", "设置时间")},
    WorkText{QLatin1StringView("upgrade"), QT_TRANSLATE_NOOP("ReportTexts", "固件升级")},
    WorkText{SystemCommand::channelName, QT_TRANSLATE_NOOP("ReportTexts", "通道名称")},
    WorkText{SystemCommand::ntpConfig, QT_TRANSLATE_NOOP("ReportTexts", "时间服务器和时区")},
    WorkText{SystemCommand::dstConfig, QT_TRANSLATE_NOOP("ReportTexts", "夏令时")},
    WorkText{SystemCommand::autoMaintain, QT_TRANSLATE_NOOP("ReportTexts", "自动维护")},
    WorkText{SystemCommand::rebootDevice, QT_TRANSLATE_NOOP("ReportTexts", "重启")},
    WorkText{SystemCommand::resetSystem, QT_TRANSLATE_NOOP("ReportTexts", "恢复默认设置")},
    WorkText{SystemCommand::videoStandard, QT_TRANSLATE_NOOP("ReportTexts", "视频制式")},
    WorkText{SystemCommand::modifyPassword, QT_TRANSLATE_NOOP("ReportTexts", "修改密码")},
};

/// The name of an image setting; empty if it has none.
QString imageSettingName(const QString &setting)
{
    const QString key = setting.startsWith(CameraKey::picture) ? setting.section(u'.', 1) : setting;
    const QString group = key.section(u'.', 0, 0);
    for (const ImageSettingText &text : imageSettingTexts) {
        if (group == text.group)
            return QCoreApplication::translate("ReportTexts", text.source);
    }
    return {};
}

} // namespace

QString ReportTexts::finding(FindingKind kind)
{
    switch (kind) {
    case FindingKind::NotInitialised:
        return tr("未初始化");
    case FindingKind::DuplicateAddress:
        return tr("地址重复");
    case FindingKind::LoginRefused:
        return tr("登录被拒绝");
    case FindingKind::NotReached:
        return tr("无法读取");
    case FindingKind::ClockOff:
        return tr("时间不准");
    case FindingKind::OldFirmware:
        return tr("固件较旧");
    case FindingKind::NoTimeServer:
        return tr("未使用时间服务器");
    }
    return {};
}

QString ReportTexts::finding(const Finding &finding)
{
    const QString kind = ReportTexts::finding(finding.kind);
    return finding.text.isEmpty() ? kind : titled(kind, finding.text);
}

QString ReportTexts::titled(const QString &title, const QString &text)
{
    //: A line of the site report. %1 is a title, such as the kind of a finding, %2 its text.
    return tr("%1：%2").arg(title, text);
}

QString ReportTexts::outcome(const StepOutcome &outcome)
{
    return outcome.result == resultCode(LoginResult::Success) ? QString() : outcomeText(outcome);
}

QString ReportTexts::clockOffset(qint64 seconds)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    const qint64 span = std::abs(seconds);
    QString text;
    if (span < 2 * minute)
        text = tr("%1 秒").arg(span);
    else if (span < hour)
        text = tr("%1 分 %2 秒").arg(span / minute).arg(span % minute);
    else if (span < day)
        text = tr("%1 小时 %2 分").arg(span / hour).arg(span % hour / minute);
    else
        text = tr("%1 天 %2 小时").arg(span / day).arg(span % day / hour);
    if (seconds == 0)
        return tr("一致");
    //: The clock of a device against that of the computer. %1 is a span of time.
    return seconds > 0 ? tr("快 %1").arg(text) : tr("慢 %1").arg(text);
}

QString ReportTexts::versions(const QString &version, const QString &newest)
{
    //: %1 is the firmware version of a device, %2 the newer version of another device of the same model.
    return tr("%1，同型号设备为 %2").arg(version, newest);
}

QString ReportTexts::deviceName(const ReportDevice &device)
{
    const QString title = device.title();
    const QString place = device.mac.isEmpty() ? device.ipport : device.mac;
    return title.isEmpty() ? place : QStringLiteral("%1 (%2)").arg(title, place);
}

QString ReportTexts::timeServerOf(const DeviceInspection &inspection)
{
    if (!inspection.usesTimeServer)
        return notReported();
    if (!*inspection.usesTimeServer)
        return tr("关闭");
    return inspection.timeServer.isEmpty() ? tr("开启") : inspection.timeServer;
}

QString ReportTexts::streamOf(const StreamSettings &stream)
{
    QStringList parts;
    if (!stream.compression.isEmpty())
        parts.append(stream.compression == QLatin1String("H264") ? QStringLiteral("H.264")
                                                                 : stream.compression);
    if (stream.width > 0 && stream.height > 0)
        parts.append(QStringLiteral("%1×%2").arg(stream.width).arg(stream.height));
    if (stream.frameRate > 0)
        parts.append(QStringLiteral("%1 fps").arg(stream.frameRate));
    if (stream.bitRate > 0)
        parts.append(QStringLiteral("%1 kbit/s %2")
                         .arg(stream.bitRate)
                         .arg(stream.isVariable ? QStringLiteral("VBR") : QStringLiteral("CBR")));
    return parts.isEmpty() ? notReported() : parts.join(u' ');
}

QString ReportTexts::batchOperation(const QString &work, const QString &title)
{
    for (const WorkText &text : workTexts) {
        if (work == text.work)
            return QCoreApplication::translate("ReportTexts", text.source);
    }
    return title;
}

QString ReportTexts::writtenSetting(const QString &setting, int channel)
{
    QString operation;
    if (setting == WrittenSetting::channelName) {
        operation = tr("通道名称");
    } else if (setting == WrittenSetting::encode) {
        operation = tr("编码设置");
    } else {
        const QString name = imageSettingName(setting.mid(WrittenSetting::imagePrefix.size()));
        //: An image setting of a device was changed. %1 is the setting.
        operation = name.isEmpty() ? tr("图像设置") : tr("图像设置：%1").arg(name);
    }
    return channel > 0 ? operation + QStringLiteral(" (%1)").arg(ReportTexts::channel(channel + 1))
                       : operation;
}

QString ReportTexts::writtenValue(const QString &value)
{
    if (value == QLatin1String("true"))
        return tr("开启");
    return value == QLatin1String("false") ? tr("关闭") : value;
}
