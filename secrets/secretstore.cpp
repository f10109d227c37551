#include "secrets/secretstore.h"

QString SecretProblem::text() const
{
    switch (kind) {
    case None:
        break;
    case Absent:
        return tr("没有密钥服务");
    case Locked:
        return tr("密钥服务已锁定");
    case NoResponse:
        return tr("密钥服务没有响应");
    case Failed:
        return detail;
    }
    return {};
}
