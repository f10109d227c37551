#include "device/dh/upgrade/firmwarefile.h"

#include <QFile>
#include <QFileInfo>

bool FirmwareFile::fits(const QString &model) const
{
    return !head || head->fits(model.toStdString());
}

UpgradeTools::Result FirmwareFile::refusalFor(const QString &model) const
{
    return refusal == UpgradeTools::None && !fits(model) ? UpgradeTools::WrongModel : refusal;
}

const FirmwareFile &FirmwareFiles::at(const QString &path)
{
    auto file = m_files.find(path);
    if (file == m_files.end())
        file = m_files.insert(path, checkFirmwareFile(path));
    return *file;
}

FirmwareFile checkFirmwareFile(const QString &path)
{
    using Kind = sdk::FirmwareHeadReading::Kind;
    const auto refused = [](UpgradeTools::Result refusal) {
        return FirmwareFile{.refusal = refusal, .head = {}};
    };
    if (path.isEmpty())
        return refused(UpgradeTools::NoFile);
    const QFileInfo information(path);
    if (!information.exists())
        return refused(UpgradeTools::FileMissing);
    QFile file(path);
    if (!information.isFile() || !file.open(QFile::ReadOnly))
        return refused(UpgradeTools::FileUnreadable);
    if (file.size() > FirmwareFile::largest)
        return refused(UpgradeTools::FileTooLarge);
    const QByteArray beginning = file.read(sdk::longestFirmwareHead);
    if (file.error() != QFile::NoError)
        return refused(UpgradeTools::FileUnreadable);
    if (beginning.isEmpty())
        return refused(UpgradeTools::FileEmpty);
    const sdk::FirmwareHeadReading reading =
        sdk::readFirmwareHead({beginning.constData(), static_cast<std::size_t>(beginning.size())});
    if (reading.kind == Kind::Damaged)
        return refused(UpgradeTools::FileDamaged);
    return {.refusal = UpgradeTools::None,
            .head = reading.kind == Kind::Known
                        ? std::optional(reading.head)
                        : sdk::firmwareHeadOfName(information.fileName().toStdString())};
}
