#include "qml/configtools/droppedfiles.h"

#include "device/registry/listprotection.h"
#include "device/sites/sitefile.h"

#include <QFileInfo>

DroppedFiles::Kind DroppedFiles::kindOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == SiteFile::suffix)
        return Kind::SiteFile;
    if (suffix == encryptedListSuffix)
        return Kind::EncryptedList;
    const bool isList =
        suffix == QLatin1String("xlsx") || suffix == QLatin1String("csv") || suffix == QLatin1String("xml");
    return isList ? Kind::List : Kind::Refused;
}

QString DroppedFiles::refusalOf(const QList<QUrl> &urls)
{
    if (urls.size() != 1)
        return tr("一次只能拖入一个文件");
    const QFileInfo file(pathOf(urls));
    if (!file.isFile())
        return tr("拖入的不是本机上的文件");
    return kindOf(file.filePath()) != Refused
               ? QString()
               : tr("不支持的文件：%1。可以拖入设备列表（.xlsx、.csv、.xml、.devlist）或现场文件（.site）")
                     .arg(file.fileName());
}

QString DroppedFiles::pathOf(const QList<QUrl> &urls)
{
    return urls.value(0).toLocalFile();
}
