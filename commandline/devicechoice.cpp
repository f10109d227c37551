#include "commandline/devicechoice.h"

#include "commandline/batchrun.h"
#include "commandline/interruption.h"
#include "commandline/secrets.h"
#include "commandline/textfile.h"
#include "device/batch/addingbatches.h"
#include "device/registry/devicefamily.h"
#include "device/registry/listprotection.h"
#include "device/search/searchrange.h"
#include "device/store/devicefilter.h"
#include "device/store/devicerow.h"
#include "device/store/ipv4address.h"

#include <QEventLoop>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

QString rangeText(SearchRangeError error)
{
    switch (error) {
    case SearchRangeError::BeginAboveEnd:
        return u"--range: the first address is higher than the last"_s;
    case SearchRangeError::TooManySegments:
        return u"--range: the range has more than %1 /24 blocks"_s.arg(maximumSegmentDistance + 1);
    default:
        return u"--range needs two IPv4 addresses, as in 192.168.1.1-192.168.1.200"_s;
    }
}

/// Sets the range of the next search. Returns an error text, empty on success.
QString setRange(const CommandContext &context)
{
    if (!context.arguments.has("range"_L1))
        return {};
    const QString range = context.arguments.value("range"_L1);
    const QString first = range.section(u'-', 0, 0).trimmed();
    const QString last = range.section(u'-', 1).trimmed();
    const SearchRangeError error = searchRangeError(first, last);
    if (error != SearchRangeError::None)
        return rangeText(error);
    context.factory.setSearchByIPInfo(dhFamily, ipv4Number(first).value_or(0), ipv4Number(last).value_or(0));
    return {};
}

int search(CommandContext &context)
{
    const QString error = setRange(context);
    if (!error.isEmpty())
        return context.fail(UsageError, error);
    context.terminal.writeProgress(u"Searching for devices ..."_s);
    QEventLoop loop;
    QObject::connect(&context.factory, &CDeviceFactory::signalSearchDone, &loop, &QEventLoop::quit);
    QObject::connect(
        &context.factory, &CDeviceFactory::signalSearchLimited, &loop, [&context](int rows, int leftOut) {
            context.terminal.writeError(
                u"The list is limited to %1 devices; %2 responses are left out."_s.arg(rows).arg(leftOut));
        });
    Interruption interruption([&context] { context.factory.stopSearch(dhFamily); });
    context.factory.startSearch(dhFamily);
    loop.exec();
    const qsizetype found = context.factory.filterData(dhFamily, RowFilter::all).size();
    context.terminal.writeProgress(u"Found %1 devices."_s.arg(found));
    if (interruption.isRequested())
        return context.fail(NothingDone, u"Interrupted."_s);
    return AllDone;
}

bool isNamed(const QJsonObject &row, const QString &name)
{
    const QString mac = QString(name).replace(u'-', u':');
    return rowName(row) == name || row.value(DeviceRowKey::ipport).toString() == name ||
           rowAddress(row) == name ||
           row.value(DeviceRowKey::mac).toString().compare(mac, Qt::CaseInsensitive) == 0;
}

QList<QJsonObject> listedRows(const CommandContext &context)
{
    QList<QJsonObject> rows;
    const QString text = context.arguments.value("filter"_L1);
    const QVariantList listed =
        context.factory.filterData(dhFamily, text.isEmpty() ? RowFilter::all : RowFilter::containsText, text);
    for (const QVariant &row : listed)
        rows.append(row.toJsonObject());
    const auto isBefore = [](const QJsonObject &left, const QJsonObject &right) {
        const auto key = [](const QJsonObject &row) {
            return std::pair(ipv4Number(rowAddress(row)).value_or(0), rowName(row));
        };
        return key(left) < key(right);
    };
    std::sort(rows.begin(), rows.end(), isBefore);
    return rows;
}

/// The names in "--devices"; empty with an error.
QStringList namesIn(const QString &which, QString &error)
{
    QStringList names;
    const QStringList parts = which.split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString name = part.trimmed();
        if (!name.startsWith(u'@')) {
            names.append(name);
            continue;
        }
        const TextLines lines = readTextLines(name.sliced(1));
        if (!lines.error.isEmpty()) {
            error = lines.error;
            return {};
        }
        for (const TextLine &line : lines.lines)
            names.append(line.text);
    }
    names.removeAll(QString());
    names.removeDuplicates();
    if (names.isEmpty())
        error = u"--devices names no device"_s;
    return names;
}

} // namespace

QStringList DeviceChoice::identities() const
{
    QStringList names;
    for (const QJsonObject &row : rows)
        names.append(rowName(row));
    return names;
}

QStringList DeviceChoice::addresses() const
{
    QStringList names;
    for (const QJsonObject &row : rows)
        names.append(row.value(DeviceRowKey::ipport).toString());
    return names;
}

int readDeviceList(CommandContext &context, const QString &path, Batch *&batch)
{
    QString passphrase;
    if (QFileInfo(path).suffix().compare(encryptedListSuffix, Qt::CaseInsensitive) == 0) {
        const Secret secret = readPassphrase(context.arguments, context.terminal, SecretPurpose::Login);
        if (!secret.error.isEmpty())
            return context.fail(UsageError, secret.error);
        passphrase = secret.password;
    }
    AddingBatches adding(context.factory, context.batches);
    QEventLoop loop;
    QString refusal;
    QObject::connect(&adding, &AddingBatches::importBegan, &loop, [&](Batch *begun) {
        batch = begun;
        loop.quit();
    });
    QObject::connect(&adding, &AddingBatches::importRefused, &loop, [&](const QString &reason) {
        refusal = reason;
        loop.quit();
    });
    // Emitted instead of the two signals above if the batch cannot start.
    QObject::connect(&context.batches, &Batches::refused, &loop, [&](const QString &reason) {
        refusal = reason;
        loop.quit();
    });
    adding.importList(u"import"_s, path, passphrase);
    loop.exec();
    if (!batch)
        return context.fail(NothingDone, refusal);
    return awaitBatch(context, *batch) ? AllDone : SomeFailed;
}

int fillDeviceList(CommandContext &context)
{
    if (!context.arguments.has("list"_L1))
        return search(context);
    Batch *batch = nullptr;
    const int exitCode = readDeviceList(context, context.arguments.value("list"_L1), batch);
    if (exitCode == SomeFailed)
        return context.fail(NothingDone, u"The devices of the list were not read completely."_s);
    return exitCode;
}

DeviceChoice chooseDevices(const CommandContext &context, QString &error)
{
    const QString which = context.arguments.value("devices"_L1, u"all"_s);
    if (which == "all"_L1)
        return {.rows = listedRows(context), .missing = {}};
    return devicesNamed(context, namesIn(which, error));
}

DeviceChoice devicesNamed(const CommandContext &context, const QStringList &names)
{
    const QList<QJsonObject> listed = listedRows(context);
    DeviceChoice choice;
    for (const QString &name : names) {
        bool isListed = false;
        for (const QJsonObject &row : listed) {
            if (!isNamed(row, name))
                continue;
            isListed = true;
            if (!choice.rows.contains(row))
                choice.rows.append(row);
        }
        if (!isListed)
            choice.missing.append(name);
    }
    return choice;
}

int findDevices(CommandContext &context, DeviceChoice &choice)
{
    // Before the search, which takes seconds.
    if (!context.arguments.has("devices"_L1))
        return context.fail(UsageError, u"--devices is missing: name devices, or \"all\""_s);
    const QString which = context.arguments.value("devices"_L1);
    const bool hasNames = which != "all"_L1;
    QString error;
    QStringList names;
    if (hasNames) // standard input and pipes can be read once only
        names = namesIn(which, error);
    if (!error.isEmpty())
        return context.fail(UsageError, error);
    if (const int exitCode = fillDeviceList(context); exitCode != AllDone)
        return exitCode;
    choice =
        hasNames ? devicesNamed(context, names) : DeviceChoice{.rows = listedRows(context), .missing = {}};
    if (!choice.rows.isEmpty())
        return AllDone;
    for (const QString &name : std::as_const(choice.missing))
        context.terminal.writeError(u"%1 was not found"_s.arg(name));
    return context.fail(NothingDone, u"There is no such device."_s);
}

int setAccount(const CommandContext &context)
{
    const bool hasSource = hasPassword(context.arguments);
    const std::optional<DeviceAccount> &site = context.surroundings.siteAccount;
    if (!hasSource && site) {
        context.factory.setDefaultAccount(dhFamily, context.arguments.value("user"_L1, site->account),
                                          site->password);
        return AllDone;
    }
    if (!hasSource && context.arguments.has("list"_L1)) // its lines have accounts
        return AllDone;
    const Secret secret = readPassword(context.arguments, context.terminal, SecretPurpose::Login);
    if (!secret.error.isEmpty())
        return context.fail(UsageError, secret.error);
    context.factory.setDefaultAccount(dhFamily, context.arguments.value("user"_L1, u"admin"_s),
                                      secret.password);
    return AllDone;
}

} // namespace commandline
