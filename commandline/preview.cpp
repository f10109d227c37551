#include "commandline/preview.h"

#include "device/models/batchreport.h"
#include "device/models/modelkeys.h"
#include "device/store/devicerow.h"

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QList<QVariantMap> rowsOf(const BatchPreview &preview)
{
    QList<QVariantMap> rows;
    for (int row = 0; row < preview.rowCount(); ++row)
        rows.append(preview.get(row));
    return rows;
}

QString planWord(int kind)
{
    switch (kind) {
    case BatchPreview::Skipped:
        return u"skip"_s;
    case BatchPreview::Warned:
        return u"warning"_s;
    default:
        return u"change"_s;
    }
}

} // namespace

QVariantList previewRows(const DeviceChoice &choice)
{
    QVariantList rows;
    for (const QJsonObject &row : choice.rows) {
        QVariantMap values = row.toVariantMap();
        values.insert(RowKey::identity, rowName(row));
        rows.append(values);
    }
    return rows;
}

int printPreview(const CommandContext &context, const BatchPreview &preview, const QStringList &missing)
{
    RecordTable table({u"device"_s, u"mac"_s, u"name"_s, u"plan"_s, u"value"_s, u"note"_s});
    bool isComplete = missing.isEmpty();
    for (const QVariantMap &row : rowsOf(preview)) {
        const int kind = row.value(RowKey::kind).toInt();
        isComplete = isComplete && kind != BatchPreview::Skipped;
        table.add({row.value(DeviceRowKey::ipport).toString(), row.value(DeviceRowKey::mac).toString(),
                   row.value(RowKey::title).toString(), planWord(kind), row.value(RowKey::action).toString(),
                   row.value(RowKey::note).toString()});
    }
    for (const QString &name : missing)
        table.add({name, QString(), QString(), u"skip"_s, QString(), u"not found"_s});
    context.print(table);
    return isComplete ? AllDone : SomeFailed;
}

void addSkipped(const BatchPreview &preview, ResultTable &results)
{
    for (const QVariantMap &row : rowsOf(preview)) {
        if (row.value(RowKey::kind).toInt() != BatchPreview::Skipped)
            continue;
        const QString identity = row.value(RowKey::identity).toString();
        results.add({.name = identity,
                     .identity = identity,
                     .ipport = row.value(DeviceRowKey::ipport).toString(),
                     .title = row.value(RowKey::title).toString()},
                    {.result = BatchReport::NotDone, .text = row.value(RowKey::note).toString()});
    }
}

QStringList warningsOf(const BatchPreview &preview)
{
    QStringList warnings;
    for (const QVariantMap &row : rowsOf(preview)) {
        if (row.value(RowKey::kind).toInt() == BatchPreview::Warned)
            warnings.append(u"%1 to %2: %3"_s.arg(row.value(DeviceRowKey::ipport).toString(),
                                                  row.value(RowKey::action).toString(),
                                                  row.value(RowKey::note).toString()));
    }
    return warnings;
}

} // namespace commandline
