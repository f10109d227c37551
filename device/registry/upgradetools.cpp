#include "device/registry/upgradetools.h"

#include "device/registry/deviceimport.h"

QString UpgradeTools::text(int result)
{
    switch (static_cast<Result>(result)) {
    case Restarting:
        return tr("等待设备重启");
    case Writing:
        return tr("正在写入，请勿断电");
    case Sending:
        return tr("正在发送文件");
    case Preparing:
        return tr("正在登录设备");
    case Waiting:
        return tr("等待升级");
    case None:
        return {};
    case Success:
        return tr("升级成功");
    case NoFile:
        return tr("未选择升级文件");
    case FileMissing:
        return tr("升级文件不存在");
    case FileUnreadable:
        return tr("升级文件无法读取");
    case FileEmpty:
        return tr("升级文件是空的");
    case FileTooLarge:
        return tr("升级文件过大");
    case FileDamaged:
        return tr("升级文件已损坏");
    case WrongModel:
        return tr("升级文件不适用于此型号");
    case FirmwareRefused:
        return tr("设备不接受此升级文件");
    case WrongPassword:
        return tr("密码错误");
    case NoSuchAccount:
        return tr("账号不存在");
    case AccountLocked:
        return tr("账号被锁定");
    case NotInitialised:
        return tr("设备未初始化");
    case NotSupported:
        return tr("设备不支持升级，或未初始化");
    case LineUnusable:
        return tr("IP或端口填写错误");
    case ListedTwice:
        return tr("与前面的行是同一设备");
    case NotListed:
        return tr("设备已不在列表中");
    case NoResponse:
        return tr("设备无应答");
    case DeviceBusy:
        return tr("设备忙，请稍后重试");
    case Failed:
        return tr("设备中断了升级");
    case Stuck:
        return tr("升级长时间没有进展");
    case NotBack:
        return tr("设备重启后未恢复");
    case KeptVersion:
        return tr("重启后仍是原版本");
    case Stopped:
        return tr("已停止，设备未改动");
    case Cut:
        return tr("程序退出，升级中断");
    case VersionUnknown:
        return tr("设备已恢复，但无法确认版本");
    case UnknownCertificate:
        return tr("设备证书未确认");
    case ChangedCertificate:
        return tr("设备证书已改变");
    }
    return tr("未知错误 %1").arg(result);
}

int UpgradeTools::batchResult(Result result)
{
    switch (result) {
    case Success:
        return resultCode(LoginResult::Success);
    case NoFile:
    case FileMissing:
    case FileUnreadable:
    case FileEmpty:
    case FileTooLarge:
    case FileDamaged:
    case WrongModel:
        return upgradeFileUnusable;
    case FirmwareRefused:
        return refusedByDevice;
    case WrongPassword:
        return resultCode(LoginResult::WrongPassword);
    case NoSuchAccount:
        return resultCode(LoginResult::NoSuchAccount);
    case AccountLocked:
        return resultCode(LoginResult::AccountLocked);
    case NotInitialised:
        return resultCode(LoginResult::NotInitialised);
    case NotSupported:
        return resultCode(LoginResult::NotSupported);
    case LineUnusable:
    case ListedTwice:
    case NotListed:
        return unusableLine;
    case NoResponse:
        return resultCode(LoginResult::NetworkFailure);
    case DeviceBusy:
        return deviceBusy;
    case Failed:
    case Stuck:
    case NotBack:
    case KeptVersion:
        return upgradeFailed;
    case VersionUnknown:
        return upgradeUnconfirmed;
    case UnknownCertificate:
        return resultCode(LoginResult::UnknownCertificate);
    case ChangedCertificate:
        return resultCode(LoginResult::ChangedCertificate);
    default: // stopped before the device was changed, or not started
        return resultCode(LoginResult::NotDone);
    }
}

QString UpgradeTools::templateFileName()
{
    return tr("批量升级模板.xlsx");
}
