// Texts of a site report in the user's language.
#pragma once

#include "report/sitedata.h"

#include <QCoreApplication>

/// Stateless; any thread.
class ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportTexts)
public:
    // Titles of values and columns.
    static QString report() { return tr("现场报告"); }
    static QString findings() { return tr("异常项"); }
    static QString changes() { return tr("本次更改"); }
    static QString devices() { return tr("设备"); }
    static QString name() { return tr("名称"); }
    static QString type() { return tr("类型"); }
    static QString model() { return tr("型号"); }
    static QString address() { return tr("地址"); }
    static QString port() { return tr("端口"); }
    static QString firmware() { return tr("固件版本"); }
    static QString serial() { return tr("序列号"); }
    static QString clock() { return tr("时间偏差"); }
    static QString clockSeconds() { return tr("时间偏差（秒）"); }
    static QString timeServer() { return tr("时间服务器"); }
    static QString channels() { return tr("通道数"); }
    static QString stream() { return tr("主码流"); }
    static QString channelNumber() { return tr("通道"); }
    static QString frameWidth() { return tr("宽度（像素）"); }
    static QString frameHeight() { return tr("高度（像素）"); }
    static QString result() { return tr("结果"); }
    static QString image() { return tr("图像"); }
    static QString imageBefore() { return tr("更改前"); }
    static QString imageNow() { return tr("当前"); }
    static QString time() { return tr("时间"); }
    static QString operation() { return tr("操作"); }
    static QString value() { return tr("新值"); }
    static QString details() { return tr("说明"); }
    static QString installer() { return tr("安装人员"); }
    static QString notReported() { return tr("未报告"); }
    static QString noImage() { return tr("无图像"); }
    static QString noFindings() { return tr("没有异常项。"); }
    static QString noChanges() { return tr("程序启动以来没有更改设备。"); }
    static QString reached() { return tr("已读取"); }
    static QString conspicuous() { return tr("有异常"); }
    static QString notWritten() { return tr("PDF文件无法生成"); }
    static QString noFolder(const QString &folder) { return tr("无法建立文件夹 %1").arg(folder); }
    //: %1 is the path of the folder for temporary files, %2 the reason why it cannot be used.
    static QString noTemporaryFolder(const QString &folder, const QString &reason)
    {
        return tr("临时文件夹 %1 无法使用：%2").arg(folder, reason);
    }
    //: Why a device of a report was not read: %1 devices in a row refused the login, and the report was
    //: stopped.
    static QString refusalsInARow(int count) { return tr("连续 %1 台设备拒绝登录").arg(count); }
    //: %1 is the path of a file or folder, %2 the reason why it cannot be written.
    static QString fileFailed(const QString &path, const QString &reason)
    {
        return tr("%1 无法写入：%2").arg(path, reason);
    }
    static QString droppedChanges(qsizetype count) { return tr("较早的 %1 项更改未保留。").arg(count); }
    static QString moreChannels(qsizetype count) { return tr("另有 %1 个通道").arg(count); }
    //: A channel of a recorder. %1 is its number, from 1.
    static QString channel(int number) { return tr("通道 %1").arg(number); }

    /// A title and its text as one line.
    static QString titled(const QString &title, const QString &text);
    static QString finding(FindingKind kind);
    /// The kind of a finding and its details as one line.
    static QString finding(const Finding &finding);
    /// The outcome of the work with a device; empty for a success.
    static QString outcome(const StepOutcome &outcome);
    /// By how much the clock of a device is ahead of (above 0) or behind the host.
    static QString clockOffset(qint64 seconds);
    /// The version of a device and the newer one of a device of the same model.
    static QString versions(const QString &version, const QString &newest);
    /// ReportDevice::title(), followed in parentheses by the MAC, or by address and port if the MAC is
    /// unknown. Without a title: the MAC or, if it is unknown, address and port, without parentheses.
    static QString deviceName(const ReportDevice &device);
    /// The time server of a device that was read: its address, on, off, or not reported.
    static QString timeServerOf(const DeviceInspection &inspection);
    /// "H.265 1920×1080 25 fps 4096 kbit/s VBR", without the values that are not reported; notReported() if
    /// none is.
    static QString streamOf(const StreamSettings &stream);
    /// The operation of a batch by BatchPlan::work, which commands and the window share. `title` for other
    /// work.
    static QString batchOperation(const QString &work, const QString &title);
    /// The operation of a setting (WrittenSetting) of the configuration pages. `channel` is from 0; it is
    /// named unless it is the first one.
    static QString writtenSetting(const QString &setting, int channel);
    /// The value of such a setting: of a switch ("true" or "false") in the user's language, of another
    /// setting unchanged.
    static QString writtenValue(const QString &value);
};
