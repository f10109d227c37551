#include "sdk/configtext/configtext.h"

#include "sdk/blocktext.h"
#include "sdk/configtext/internal/configtable.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <span>

namespace sdk {

namespace {

bool unpackField(const ConfigField &field, const QJsonValue &value, char *record);
QJsonValue packedField(const ConfigField &field, const char *record);

/// Unpacks the keys of `object` that have a field. Returns false when a value does not fit.
bool unpackFields(std::span<const ConfigField> fields, const QJsonObject &object, char *record)
{
    return std::all_of(fields.begin(), fields.end(), [&](const ConfigField &field) {
        const QJsonValue value = object.value(QLatin1String(field.key));
        return value.isUndefined() || unpackField(field, value, record);
    });
}

/// Nothing when the number of a field is out of range.
std::optional<QJsonObject> packedFields(std::span<const ConfigField> fields, const char *record)
{
    QJsonObject object;
    for (const ConfigField &field : fields) {
        const QJsonValue value = packedField(field, record);
        if (value.isUndefined())
            return std::nullopt;
        object.insert(QLatin1String(field.key), value);
    }
    return object;
}

/// Returns false when the value does not fit `field`.
bool unpackField(const ConfigField &field, const QJsonValue &value, char *record)
{
    char *const fieldData = record + field.offset;
    std::int32_t number = 0;
    switch (field.kind) {
    case ConfigFieldKind::Text: {
        if (!value.isString())
            return false;
        const QByteArray bytes = value.toString().toUtf8();
        const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        // A zero ends the text of a field, so the text is truncated there.
        setBlockText(fieldData, field.size, text.substr(0, text.find('\0')));
        return true;
    }
    case ConfigFieldKind::Flag:
        if (!value.isBool())
            return false;
        number = value.toBool() ? 1 : 0;
        break;
    case ConfigFieldKind::ByteFlag:
        if (!value.isBool())
            return false;
        *fieldData = value.toBool() ? 1 : 0;
        return true;
    case ConfigFieldKind::Number: {
        const double wide = value.toDouble(std::nan(""));
        // Negated, so that NaN fails as well.
        if (!(wide >= field.minimum && wide <= field.maximum) || wide != std::floor(wide))
            return false;
        number = static_cast<std::int32_t>(wide);
        break;
    }
    case ConfigFieldKind::Object:
        return value.isObject() && unpackFields({field.inner, field.innerCount}, value.toObject(), fieldData);
    }
    std::memcpy(fieldData, &number, sizeof(number));
    return true;
}

/// Undefined when the number of the field is out of range.
QJsonValue packedField(const ConfigField &field, const char *record)
{
    const char *const fieldData = record + field.offset;
    if (field.kind == ConfigFieldKind::Text) {
        const std::string_view complete(fieldData, field.size);
        const std::string_view text = complete.substr(0, complete.find('\0'));
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    if (field.kind == ConfigFieldKind::Object) {
        const std::optional<QJsonObject> inner = packedFields({field.inner, field.innerCount}, fieldData);
        return inner ? QJsonValue(*inner) : QJsonValue(QJsonValue::Undefined);
    }
    std::int32_t number = 0;
    if (field.kind == ConfigFieldKind::ByteFlag)
        number = static_cast<std::uint8_t>(*fieldData);
    else
        std::memcpy(&number, fieldData, sizeof(number));
    if (number < field.minimum || number > field.maximum)
        return QJsonValue(QJsonValue::Undefined);
    if (field.kind == ConfigFieldKind::Number)
        return number;
    return number != 0;
}

QString keyOf(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

/// The table of `name`; null for an unknown name, and when `record` is too small.
const ConfigTable *tableFor(std::string_view name, const void *record, std::uint32_t recordSize)
{
    const ConfigTable *table = configTable(name);
    return table && record && recordSize >= table->recordSize ? table : nullptr;
}

} // namespace

std::optional<std::uint32_t> unpackConfigText(std::string_view name, std::string_view text, void *record,
                                              std::uint32_t recordSize)
{
    const ConfigTable *table = tableFor(name, record, recordSize);
    if (!table || text.size() > longestConfigText)
        return std::nullopt;
    const auto size = static_cast<qsizetype>(text.size());
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), size));
    const QJsonValue inner = document.object().value(keyOf(name));
    if (!inner.isObject())
        return std::nullopt;

    // A copy is filled, so that the record is unchanged when a later key is invalid.
    QByteArray filled(static_cast<const char *>(record), static_cast<qsizetype>(table->recordSize));
    if (!unpackFields(table->fields, inner.toObject(), filled.data()))
        return std::nullopt;
    std::memcpy(filled.data(), &table->recordSize, sizeof(table->recordSize));
    std::memcpy(record, filled.constData(), table->recordSize);
    return table->recordSize;
}

std::optional<QByteArray> packConfigText(std::string_view name, const void *record, std::uint32_t recordSize)
{
    const ConfigTable *table = tableFor(name, record, recordSize);
    if (!table)
        return std::nullopt;
    const std::optional<QJsonObject> object = packedFields(table->fields, static_cast<const char *>(record));
    if (!object)
        return std::nullopt;
    return QJsonDocument(QJsonObject{{keyOf(name), *object}}).toJson(QJsonDocument::Compact);
}

} // namespace sdk
