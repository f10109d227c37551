#include "report/sitefindings.h"
#include "tests/datatable.h"

/// Findings of a site, from the values of its devices.
class TestSiteFindings : public QObject
{
    Q_OBJECT
private:
    static constexpr int success = 0;

    /// A device that was read, without a finding.
    static ReportDevice device(int number)
    {
        ReportDevice device = {.identity = QStringLiteral("02:1a:c5:00:00:%1").arg(number),
                               .ipport = QStringLiteral("192.168.1.%1:80").arg(number),
                               .address = QStringLiteral("192.168.1.%1").arg(number),
                               .mac = QStringLiteral("02:1a:c5:00:00:%1").arg(number),
                               .name = QStringLiteral("D%1").arg(number),
                               .type = "IPC",
                               .model = "B-2230",
                               .version = "v2.840.10",
                               .serial = {}};
        device.outcome = {.result = success, .text = {}};
        device.isRead = true;
        device.inspection.detail = {{"serial", "3A"}};
        device.inspection.clockOffset = 0;
        device.inspection.usesTimeServer = true;
        return device;
    }

    /// "index kind text" of each finding.
    static QString findingsOf(const QList<ReportDevice> &devices)
    {
        static const QStringList kinds = {"new",   "duplicate", "refused", "unread",
                                          "clock", "firmware",  "ntp"};
        QStringList lines;
        for (const Finding &finding : siteFindings(devices))
            lines.append(
                QStringLiteral("%1 %2").arg(finding.device).arg(kinds.at(static_cast<int>(finding.kind))));
        return lines.join(", ");
    }

private Q_SLOTS:
    void findings_data()
    {
        using Change = std::function<void(ReportDevice &)>;
        const auto row = dataTable<Change, QString>({"change", "findings"});
        const auto result = [](LoginResult code) {
            return [code](ReportDevice &device) {
                device.outcome.result = resultCode(code);
                device.isRead = false;
            };
        };
        row(
            "nothing", [](ReportDevice &) {}, "");
        row(
            "not initialised, which is not a failed login",
            [](ReportDevice &device) {
                device.isInitialised = false;
                device.isRead = false;
                device.outcome.result = resultCode(LoginResult::NotInitialised);
            },
            "1 new");
        row(
            "same address",
            [](ReportDevice &device) {
                device.address = "192.168.1.1";
                device.ipport = "192.168.1.1:80";
            },
            "0 duplicate, 1 duplicate");
        row(
            "same address, another port of the router",
            [](ReportDevice &device) {
                device.address = "192.168.1.1";
                device.ipport = "192.168.1.1:81";
            },
            "");
        row(
            "same address as before, but not found any more",
            [](ReportDevice &device) {
                device.address = "192.168.1.1";
                device.ipport = "192.168.1.1:80";
                device.isLost = true;
            },
            "");
        row(
            "without an address",
            [](ReportDevice &device) {
                device.address.clear();
                device.ipport = ":80";
            },
            "");
        row("wrong password", result(LoginResult::WrongPassword), "1 refused");
        row("locked", result(LoginResult::AccountLocked), "1 refused");
        row("offline", result(LoginResult::NetworkFailure), "1 unread");
        row("left out by a stop", result(LoginResult::NotDone), "");
        row("during an upgrade", result(LoginResult::Upgrading), "");
        row(
            "clock within the tolerance",
            [](ReportDevice &device) { device.inspection.clockOffset = -clockTolerance; }, "");
        row(
            "clock behind", [](ReportDevice &device) { device.inspection.clockOffset = -clockTolerance - 1; },
            "1 clock");
        row(
            "clock not reported", [](ReportDevice &device) { device.inspection.clockOffset.reset(); }, "");
        row(
            "no time server", [](ReportDevice &device) { device.inspection.usesTimeServer = false; },
            "1 ntp");
        row(
            "time server not reported",
            [](ReportDevice &device) { device.inspection.usesTimeServer.reset(); }, "");
        row(
            "older than the sibling", [](ReportDevice &device) { device.version = "v2.840.9"; },
            "1 firmware");
        row(
            "newer than the sibling", [](ReportDevice &device) { device.version = "v2.841"; }, "0 firmware");
        row(
            "older, but of another model",
            [](ReportDevice &device) {
                device.version = "v1";
                device.model = "R-4108";
            },
            "");
        row(
            "version not reported", [](ReportDevice &device) { device.version.clear(); }, "");
        row(
            "several",
            [](ReportDevice &device) {
                device.version = "v1";
                device.inspection.clockOffset = 90000;
                device.inspection.usesTimeServer = false;
            },
            "1 clock, 1 firmware, 1 ntp");
    }

    void findings()
    {
        QFETCH(const std::function<void(ReportDevice &)>, change);
        QList<ReportDevice> devices = {device(1), device(2)};
        devices[0].mac = "02:1a:c5:00:00:01";
        change(devices[1]);
        QTEST(findingsOf(devices), "findings");
    }

    void versions_data()
    {
        const auto row = namedTable<QString, QString, int>({"left", "right", "order"});
        row("v2.9", "v2.10", -1);
        row("v2.840.1", "2.840.1", 0);
        row("v2.840", "v2.840.1", -1);
        row("2.840.1 build 20240102", "2.840.1 build 20240101", 1);
        row("99999999999999999999999.1", "99999999999999999999999.2", -1);
        row("", "v1", -1);
    }

    void versions()
    {
        QFETCH(const QString, left);
        QFETCH(const QString, right);
        QTEST(compareVersions(left, right), "order");
    }
};

QTEST_GUILESS_MAIN(TestSiteFindings)
#include "tst_sitefindings.moc"
