#include "device/registry/localpath.h"

#include <QUrl>

QString localPath(const QString &path)
{
    const QUrl url(path);
    return url.isLocalFile() ? url.toLocalFile() : path;
}
