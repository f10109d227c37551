#include "sdk/configtext/configtext.h"

#include "sdk/blocktext.h"
#include "sdk/configtext/internal/configtable.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstring>

namespace sdk {

namespace {

/// Returns false when the value does not fit `field`.
bool unpackField(const ConfigField &field, const QJsonValue &value, char *record)
{
    char *const place = record + field.offset;
    std::int32_t number = 0;
    switch (field.kind) {
    case ConfigFieldKind::Text: {
        if (!value.isString())
            return false;
        const QByteArray bytes = value.toString().toUtf8();
        const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        // A zero inside ends the text of a field, so nothing is written behind it.
        setBlockText(place, field.size, text.substr(0, text.find('\0')));
        return true;
    }
    case ConfigFieldKind::Flag:
        if (!value.isBool())
            return false;
        number = value.toBool() ? 1 : 0;
        break;
    case ConfigFieldKind::Number: {
        const double wide = value.toDouble(std::nan(""));
        // Turned round, so that what is no number fails as well.
        if (!(wide >= field.minimum && wide <= field.maximum) || wide != std::floor(wide))
            return false;
        number = static_cast<std::int32_t>(wide);
        break;
    }
    }
    std::memcpy(place, &number, sizeof(number));
    return true;
}

/// Undefined when the field holds a number out of its range.
QJsonValue packedField(const ConfigField &field, const char *record)
{
    const char *const place = record + field.offset;
    if (field.kind == ConfigFieldKind::Text) {
        const std::string_view whole(place, field.size);
        const std::string_view text = whole.substr(0, whole.find('\0'));
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    std::int32_t number = 0;
    std::memcpy(&number, place, sizeof(number));
    if (number < field.minimum || number > field.maximum)
        return QJsonValue(QJsonValue::Undefined);
    if (field.kind == ConfigFieldKind::Flag)
        return number != 0;
    return number;
}

QString keyOf(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

/// The table of `name`, null when it is unknown or `record` cannot hold its record.
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

    // Filled beside the record, which stays whole when a later key is bad.
    QByteArray filled(static_cast<const char *>(record), static_cast<qsizetype>(table->recordSize));
    const QJsonObject object = inner.toObject();
    for (const ConfigField &field : table->fields) {
        const QJsonValue value = object.value(QLatin1String(field.key));
        if (!value.isUndefined() && !unpackField(field, value, filled.data()))
            return std::nullopt;
    }
    std::memcpy(filled.data(), &table->recordSize, sizeof(table->recordSize));
    std::memcpy(record, filled.constData(), table->recordSize);
    return table->recordSize;
}

std::optional<QByteArray> packConfigText(std::string_view name, const void *record, std::uint32_t recordSize)
{
    const ConfigTable *table = tableFor(name, record, recordSize);
    if (!table)
        return std::nullopt;
    QJsonObject object;
    for (const ConfigField &field : table->fields) {
        const QJsonValue value = packedField(field, static_cast<const char *>(record));
        if (value.isUndefined())
            return std::nullopt;
        object.insert(QLatin1String(field.key), value);
    }
    return QJsonDocument(QJsonObject{{keyOf(name), object}}).toJson(QJsonDocument::Compact);
}

} // namespace sdk
