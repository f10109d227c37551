#include "device/registry/loginresult.h"

#include "sdk/neterror.h"

#include <QCoreApplication>

namespace {

class ResultNames
{
    Q_DECLARE_TR_FUNCTIONS(ResultNames)
public:
    static QString of(int code);
};

/// The library reports errors with and without this bit.
constexpr std::uint32_t highBit = 0x80000000;

QString ResultNames::of(int code)
{
    // Codes of single operations.
    constexpr int capabilitiesUnknown = 10;
    constexpr int unusableLine = 997;  // of a device list
    constexpr int commandFailed = 998; // over HTTP
    switch (code) {
    case resultCode(LoginResult::Success):
        return tr("成功");
    case resultCode(LoginResult::Unknown):
        return tr("未知");
    case resultCode(LoginResult::NoSuchAccount):
        return tr("账号不存在");
    case resultCode(LoginResult::WrongPassword):
        return tr("密码错误");
    case resultCode(LoginResult::AccountLocked):
        return tr("账号被锁定");
    case resultCode(LoginResult::AccountLoggedIn):
        return tr("账号已登录");
    case resultCode(LoginResult::NetworkFailure):
        return tr("网络异常");
    case resultCode(LoginResult::ProtocolMismatch):
        return tr("协议不匹配");
    case resultCode(LoginResult::NotInitialised):
        return tr("设备未初始化");
    case resultCode(LoginResult::NotSupported):
        return tr("设备不支持此操作");
    case resultCode(LoginResult::AlreadyListed):
        return tr("设备已存在");
    case resultCode(LoginResult::Upgrading):
        return tr("设备正在升级");
    case resultCode(LoginResult::NotDone):
        return tr("未执行");
    case resultCode(LoginResult::SessionEnded):
        return tr("登录已失效，请重新登录");
    case resultCode(LoginResult::InvalidValue):
        return tr("设备不接受该值");
    case resultCode(LoginResult::UnknownCertificate):
        return tr("设备证书未确认");
    case resultCode(LoginResult::ChangedCertificate):
        return tr("设备证书已改变");
    case resultCode(LoginResult::Cancelled):
        return tr("已取消");
    case resultCode(LoginResult::AddressInUse):
        return tr("该地址上应答的是其他设备");
    case resultCode(LoginResult::Unconfirmed):
        return tr("设备已接受，但结果未确认");
    case capabilitiesUnknown:
        return tr("获取设备能力失败");
    case upgradeFileUnusable:
        return tr("升级文件不可用");
    case upgradeFailed:
        return tr("升级未完成");
    case upgradeUnconfirmed:
        return tr("升级结果未确认");
    case deviceBusy:
        return tr("设备忙，请稍后重试");
    case snapshotFailed:
        return tr("抓图失败");
    case unusableLine:
        return tr("数据无效");
    case commandFailed:
        return tr("命令失败");
    case refusedByDevice:
        return tr("设备拒绝了此操作");
    default:
        return tr("未知错误 %1").arg(code);
    }
}

} // namespace

LoginResult loginResultOf(std::uint32_t libraryError)
{
    switch (static_cast<sdk::NetError>(libraryError | highBit)) {
    case sdk::NetError::ProtocolMismatch:
        return LoginResult::ProtocolMismatch;
    case sdk::NetError::WrongPassword:
    case sdk::NetError::WrongPasswordSecure:
    case sdk::NetError::WrongPasswordTriesLeft:
        return LoginResult::WrongPassword;
    case sdk::NetError::NoSuchAccount:
        return LoginResult::NoSuchAccount;
    case sdk::NetError::AccountLoggedIn:
    case sdk::NetError::AccountLoggedInSecure:
        return LoginResult::AccountLoggedIn;
    case sdk::NetError::AccountLocked:
        return LoginResult::AccountLocked;
    case sdk::NetError::NotSupported:
        return LoginResult::NotSupported;
    case sdk::NetError::SessionEnded:
        return LoginResult::SessionEnded;
    case sdk::NetError::InvalidValue:
        return LoginResult::InvalidValue;
    case sdk::NetError::Refused:
        return LoginResult::Refused;
    case sdk::NetError::UnknownCertificate:
        return LoginResult::UnknownCertificate;
    case sdk::NetError::ChangedCertificate:
        return LoginResult::ChangedCertificate;
    case sdk::NetError::Cancelled:
        return LoginResult::Cancelled;
    case sdk::NetError::AddressInUse:
        return LoginResult::AddressInUse;
    case sdk::NetError::Unconfirmed:
        return LoginResult::Unconfirmed;
    default:
        return LoginResult::NetworkFailure;
    }
}

bool isDeviceAway(std::uint32_t libraryError)
{
    const auto error = static_cast<sdk::NetError>(libraryError | highBit);
    return error == sdk::NetError::NetworkFailure || error == sdk::NetError::ConnectTimeout;
}

bool isSessionLost(std::uint32_t libraryError)
{
    return isDeviceAway(libraryError) || loginResultOf(libraryError) == LoginResult::SessionEnded;
}

bool isLoginRefused(std::uint32_t libraryError)
{
    switch (loginResultOf(libraryError)) {
    case LoginResult::SessionEnded:
    case LoginResult::WrongPassword:
    case LoginResult::NoSuchAccount:
    case LoginResult::AccountLocked:
        return true;
    default:
        return false;
    }
}

QString resultName(int code)
{
    return ResultNames::of(code);
}
