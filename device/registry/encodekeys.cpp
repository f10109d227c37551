#include "device/registry/encodekeys.h"

#include <algorithm>

namespace {

constexpr QLatin1StringView subStreamPrefix("sub");

} // namespace

StreamKey splitEncodeKey(const QString &key)
{
    if (!key.startsWith(subStreamPrefix) || key.size() == subStreamPrefix.size())
        return {.isSub = false, .field = key};
    QString field = key.mid(subStreamPrefix.size());
    field[0] = field.at(0).toLower();
    return {.isSub = true, .field = field};
}

QString encodeKey(bool isSub, QLatin1StringView field)
{
    if (!isSub)
        return field;
    return QString(subStreamPrefix) + QChar(field.front()).toUpper() + field.sliced(1);
}

std::optional<EncodeItemIndex> encodeItemIndexOf(const QString &field)
{
    if (field == EncodeKey::videoEnable)
        return EncodeItemIndex::VideoFormat;
    const auto *const found =
        std::find_if(encodeFields.begin(), encodeFields.end(),
                     [&field](const EncodeField &candidate) { return candidate.key == field; });
    return found == encodeFields.end() ? std::nullopt : found->item;
}
