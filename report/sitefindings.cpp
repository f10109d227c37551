#include "report/sitefindings.h"

#include "report/reporttexts.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr qsizetype mostOthers = 5; // devices that a finding about a shared address names

/// Whether the device has refused the login, also because the account has a session already.
bool isLoginRefused(int result)
{
    switch (static_cast<LoginResult>(result)) {
    case LoginResult::NoSuchAccount:
    case LoginResult::WrongPassword:
    case LoginResult::AccountLocked:
    case LoginResult::AccountLoggedIn:
        return true;
    default:
        return false;
    }
}

/// Whether the values of a device are missing: its step has failed, or was not done for the reason in its
/// text.
bool isFailure(const StepOutcome &outcome)
{
    return outcome.result == resultCode(LoginResult::NotDone)
               ? !outcome.text.isEmpty()
               : outcome.result != resultCode(LoginResult::Success) &&
                     outcome.result != resultCode(LoginResult::Upgrading);
}

/// The indexes of the devices at each address and port. Devices that were not found do not count.
QHash<QString, QList<qsizetype>> devicesByAddress(const QList<ReportDevice> &devices)
{
    QHash<QString, QList<qsizetype>> found;
    for (qsizetype index = 0; index < devices.size(); ++index) {
        const ReportDevice &device = devices.at(index);
        if (!device.address.isEmpty() && !device.isLost)
            found[device.ipport].append(index);
    }
    return found;
}

/// The newest version of each model.
QHash<QString, QString> newestVersions(const QList<ReportDevice> &devices)
{
    QHash<QString, QString> newest;
    for (const ReportDevice &device : devices) {
        if (device.model.isEmpty() || device.version.isEmpty())
            continue;
        QString &version = newest[device.model];
        if (version.isEmpty() || compareVersions(version, device.version) < 0)
            version = device.version;
    }
    return newest;
}

/// The number in `text` from `position` on; moves `position` behind it. -1 if there is none.
qint64 nextNumber(QStringView text, qsizetype &position)
{
    while (position < text.size() && !text.at(position).isDigit())
        ++position;
    if (position >= text.size())
        return -1;
    constexpr qint64 largest = 1'000'000'000'000'000; // versions are texts of devices: no overflow
    qint64 number = 0;
    for (; position < text.size() && text.at(position).isDigit(); ++position)
        number = std::min(largest, number * 10 + text.at(position).digitValue());
    return number;
}

} // namespace

int compareVersions(QStringView left, QStringView right)
{
    qsizetype leftPosition = 0;
    qsizetype rightPosition = 0;
    for (;;) {
        const qint64 leftNumber = nextNumber(left, leftPosition);
        const qint64 rightNumber = nextNumber(right, rightPosition);
        if (leftNumber != rightNumber)
            return leftNumber < rightNumber ? -1 : 1;
        if (leftNumber < 0)
            return 0;
    }
}

QList<Finding> siteFindings(const QList<ReportDevice> &devices)
{
    const QHash<QString, QList<qsizetype>> byAddress = devicesByAddress(devices);
    const QHash<QString, QString> newest = newestVersions(devices);
    QList<Finding> findings;
    for (qsizetype index = 0; index < devices.size(); ++index) {
        const ReportDevice &device = devices.at(index);
        const auto add = [&](FindingKind kind, const QString &text) {
            findings.append({.kind = kind, .device = index, .text = text});
        };
        if (!device.isInitialised)
            add(FindingKind::NotInitialised, {});
        QStringList others;
        for (const qsizetype other : byAddress.value(device.ipport)) {
            if (other == index)
                continue;
            if (others.size() == mostOthers) {
                others.append(QStringLiteral("…"));
                break;
            }
            others.append(ReportTexts::deviceName(devices.at(other)));
        }
        if (!others.isEmpty() && !device.isLost)
            add(FindingKind::DuplicateAddress, others.join(QStringLiteral(", ")));
        const int result = device.outcome.result;
        if (device.isInitialised && isFailure(device.outcome))
            add(isLoginRefused(result) ? FindingKind::LoginRefused : FindingKind::NotReached,
                ReportTexts::outcome(device.outcome));
        if (device.isRead && device.inspection.clockOffset &&
            std::abs(*device.inspection.clockOffset) > clockTolerance)
            add(FindingKind::ClockOff, ReportTexts::clockOffset(*device.inspection.clockOffset));
        const QString sibling = newest.value(device.model);
        if (!device.version.isEmpty() && compareVersions(device.version, sibling) < 0)
            add(FindingKind::OldFirmware, ReportTexts::versions(device.version, sibling));
        if (device.isRead && device.inspection.usesTimeServer == false)
            add(FindingKind::NoTimeServer, {});
    }
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &left, const Finding &right) { return left.kind < right.kind; });
    return findings;
}
