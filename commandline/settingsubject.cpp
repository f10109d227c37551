#include "commandline/settingsubject.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

bool SettingSubject::knows(const QString &setting) const
{
    const std::vector<SettingInfo> settings = session ? session->names() : systemSettings();
    return std::any_of(settings.cbegin(), settings.cend(),
                       [&setting](const SettingInfo &info) { return info.name == setting; });
}

std::optional<SettingSubject> subjectNamed(const QString &name)
{
    if (name == "encode"_L1)
        return SettingSubject{.session = &encodeSubject()};
    if (name == "image"_L1)
        return SettingSubject{.session = &imageSubject()};
    return name == "system"_L1 ? std::optional(SettingSubject()) : std::nullopt;
}

std::optional<int> channelOf(const Arguments &arguments)
{
    bool isNumber = false;
    const int channel = arguments.value("channel"_L1, u"1"_s).toInt(&isNumber);
    return isNumber && channel >= 1 ? std::optional(channel - 1) : std::nullopt;
}

} // namespace commandline
