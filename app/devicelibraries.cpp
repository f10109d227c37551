#include "app/devicelibraries.h"

#include "sdk/binding/boundlibraries.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

namespace {

class DeviceLibraryTexts
{
    Q_DECLARE_TR_FUNCTIONS(DeviceLibraries)
public:
    static QString of(const sdk::binding::BindingProblem &problem)
    {
        using Kind = sdk::binding::BindingProblem::Kind;
        const QString file = QString::fromStdString(problem.file);
        const QString name = QString::fromStdString(problem.name);
        switch (problem.kind) {
        case Kind::FileUnreadable:
            return tr("无法读取设备库配置文件 %1").arg(file);
        case Kind::LineUnusable:
            return tr("设备库配置文件 %1 中有无法识别的行：%2").arg(file, name);
        case Kind::SectionMissing:
            return tr("设备库配置文件中缺少 [%1] 或其 file").arg(name);
        case Kind::FunctionMissing:
            return tr("设备库配置文件没有列出 %1 的函数 %2").arg(file, name);
        case Kind::FunctionUnknown:
            return tr("设备库配置文件为 %1 列出了未知的函数 %2").arg(file, name);
        case Kind::LibraryUnusable:
            return tr("无法加载设备库 %1：%2").arg(file, name);
        case Kind::EntryMissing:
            return tr("设备库 %1 中没有入口 %2").arg(file, name);
        }
        return {};
    }
};

} // namespace

bool bindDeviceLibraries(const QString &folder, sdk::SdkLibraries &libraries, QString &error)
{
    const QFileInfo file(QDir(folder).filePath(QString::fromLatin1(bindingFileName)));
    if (!file.exists())
        return false;
    auto bound = sdk::binding::bindLibraries(file.filesystemFilePath());
    if (const auto *problem = std::get_if<sdk::binding::BindingProblem>(&bound)) {
        error = DeviceLibraryTexts::of(*problem);
        return true;
    }
    auto &filled = std::get<sdk::SdkLibraries>(bound);
    filled.clock = std::move(libraries.clock);
    libraries = std::move(filled);
    return true;
}
