// System configuration: requests to devices, their effects, and the results in the rows.
#include "device/dh/system/deviceclock.h"
#include "tests/datatable.h"
#include "tests/device/dh/factorysite.h"

#include <QScopeGuard>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

const QString cameraMac = u"02:1a:c5:00:00:01"_s;
const QString recorderMac = u"02:1a:c5:00:00:02"_s;
const QString camera = u"192.168.1.10:37777"_s;
const QString recorder = u"192.168.1.11:37777"_s;
const QString absent = u"192.168.1.99:37777"_s;

QVariantMap daylightSaving()
{
    return {{u"dstEnable"_s, true},
            {u"dstMode"_s, 1},
            {u"startMonth"_s, 3},
            {u"startDay"_s, 0},
            {u"startWeek"_s, 4},
            {u"startWeekDay"_s, 0},
            {u"startTime"_s, u"02:30"_s},
            {u"endMonth"_s, 10},
            {u"endDay"_s, 30},
            {u"endWeek"_s, 0},
            {u"endWeekDay"_s, 6},
            {u"endTime"_s, u"03:00"_s}};
}

QVariantMap ntp()
{
    return {{u"timeZone"_s, 39},
            {u"ntpSet"_s, true},
            {u"ntpServer"_s, u"time.example"_s},
            {u"ntpPort"_s, u"123"_s},
            {u"updatePeriod"_s, 65535}};
}

QVariantMap with(QVariantMap data, const QString &key, const QVariant &value)
{
    data.insert(key, value);
    return data;
}

QVariantMap without(QVariantMap data, const QString &key)
{
    data.remove(key);
    return data;
}

} // namespace

class TestSystemConfig : public QObject, private FactorySite
{
    Q_OBJECT
private:
    std::unique_ptr<QSignalSpy> m_results;
    std::unique_ptr<QSignalSpy> m_enabled;

    void run(const QString &command, const QVariantMap &data = {}, const QStringList &ipports = {camera})
    {
        m_results->clear();
        m_factory->systemConfig("dh", command, data, ipports);
    }

    /// "last octet of the address, result" in the order of the signals.
    QStringList results() const
    {
        QStringList lines;
        for (const QVariantList &arguments : *m_results)
            lines.append(arguments.at(0).toString().section(':', 0, 0).section('.', 3) + ' ' +
                         arguments.at(1).toString());
        return lines;
    }

    /// The last request of an operation, without the handle.
    QJsonObject lastRequest(const char *operation) const
    {
        const auto requests = m_site->requests().of(operation);
        if (requests.isEmpty())
            return {};
        QJsonObject request = requests.last().request;
        request.remove("loginHandle");
        return request;
    }

    QJsonObject configuration(const QString &name) const
    {
        return m_site->device(cameraMac)->configuration.value(name).toObject();
    }

private Q_SLOTS:
    void init()
    {
        openSite({sceneDevice(cameraMac, "192.168.1.10"), sceneDevice(recorderMac, "192.168.1.11")});
        m_results = std::make_unique<QSignalSpy>(m_factory.get(), &CDeviceFactory::signalRetToSystemConfig);
        m_enabled =
            std::make_unique<QSignalSpy>(m_factory.get(), &CDeviceFactory::signalSystemConfigEnablePassword);
        m_store->upsertRow({{"mac", cameraMac}, {"ipport", camera}});
        m_store->upsertRow(
            {{"mac", recorderMac}, {"ipport", recorder}, {"username", "admin"}, {"password", "secret1"}});
        m_factory->setDefaultAccount("dh", "admin", "secret1");
    }

    void cleanup()
    {
        m_results.reset();
        m_enabled.reset();
        closeSite();
    }

    void everyDeviceGetsItsOwnResult()
    {
        m_store->changeRow(recorderMac, [](QJsonObject &row) { row.insert("password", "old"); });
        run("rebootDevice", {}, {absent, recorder, camera});
        QCOMPARE(results(), QStringList({"99 5", "11 2", "10 0"}));
        QCOMPARE(asked("NetRebootDevice"), 1);
        QCOMPARE(lastRequest("NetRebootDevice").value("wait").toInt(), 5000);
        QCOMPARE(asked("NetLogout"), 1);
        run("rebootDevice", {}, {});
        QCOMPARE(results(), QStringList());
    }

    void aRefusalIsReportedForItsDevice_data()
    {
        const auto row = dataTable<QString, QVariantMap, QString, int, QString>(
            {"command", "data", "fault", "number", "text"});
        const QVariantMap noon = {{"time", "2024-02-29 12:00:00"}};
        row("time", "setTimeByPC", noon, "refusesSetting", 8, "");
        row("locales", "dstConfig", daylightSaving(), "refusesConfiguration", 0, "Locales");
        row("ntp", "ntpConfig", ntp(), "refusesConfiguration", 0, "NTP");
        row("video", "videoStandard", QVariantMap{{"videoStandard", 2}}, "refusesItem", 11, "");
        row("reboot", "rebootDevice", QVariantMap(), "refusesReboot", 0, "");
        row("reset", "resetSystem", QVariantMap(), "refusesReset", 0, "");
    }

    void aRefusalIsReportedForItsDevice()
    {
        QFETCH(QString, command);
        QFETCH(QVariantMap, data);
        QFETCH(QString, fault);
        QFETCH(int, number);
        QFETCH(QString, text);
        m_site->setFault(cameraMac, {*sdk::demo::faultNamed(fault), number, text});
        run(command, data, {camera, recorder});
        QCOMPARE(results(), QStringList({"10 999", "11 0"}));
        QCOMPARE(asked("NetLogout"), 2);
    }

    void theClockIsSet()
    {
        for (const char *command : {"setTimeByPC", "setTimeByManual"}) {
            run(command, {{"time", "2031-12-31 23:59:50"}});
            QCOMPARE(results(), QStringList("10 0"));
            QCOMPARE(valuesOf(lastRequest("NetSetDeviceSetting"), "setting channel blockSize wait time"),
                     "8|-1|24|3000|2031-12-31 23:59:50");
        }
        QCOMPARE(asked("NetSetDeviceSetting"), 2);
    }

    void daylightSavingIsARuleByWeekOrByDate()
    {
        run("dstConfig", daylightSaving());
        QCOMPARE(results(), QStringList("10 0"));
        QCOMPARE(valuesOf(lastRequest("NetGetNewConfig"), "name channel"), "Locales|-1");
        const QJsonObject written = lastRequest("NetSetNewConfig");
        QCOMPARE(written.value("channel").toInt(), -1);
        const QJsonObject byWeek = written.value("text").toObject().value("Locales").toObject();
        QCOMPARE(byWeek.size(), 12);
        QCOMPARE(valuesOf(byWeek, "beginMonth beginWeek beginDay beginHour beginMinute"), "3|-1|0|2|30");
        QCOMPARE(valuesOf(byWeek, "endMonth endWeek endDay endHour endMinute"), "10|1|6|3|0");
        QCOMPARE(valuesOf(byWeek, "daylightSaving timeFormat"), "true|yyyy-MM-dd HH:mm:ss");
        m_site->changeDevice(cameraMac, [](sdk::demo::SceneDevice &changed, const auto &) {
            changed.configuration.insert("Locales", QJsonObject{{"timeFormat", "dd.MM.yyyy"}});
        });
        run("dstConfig", with(with(daylightSaving(), "dstMode", 0), "dstEnable", false));
        QCOMPARE(valuesOf(configuration("Locales"), "beginWeek beginDay endDay daylightSaving timeFormat"),
                 "0|1|31|false|dd.MM.yyyy"); // other settings are kept
    }

    void aClockIsReadWithItsDeviation()
    {
        const auto read = [this](const QString &device) {
            return m_factory->backEnd("dh")->systemStep("readTime", {}, device)(StepControl());
        };
        const QDateTime ahead = QDateTime::currentDateTime().addSecs(3 * 3600 + 90);
        run("setTimeByManual", {{"time", ahead.toString("yyyy-MM-dd HH:mm:ss")}});
        const StepOutcome outcome = read(camera);
        QCOMPARE(outcome.result, 0);
        // The site's clock advances with each request.
        static const QRegularExpression text("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d，快 3 小时 1 分$");
        QVERIFY2(text.match(outcome.text).hasMatch(), qPrintable(outcome.text));
        QCOMPARE(read(absent), (StepOutcome{.result = 5, .text = {}}));
        QCOMPARE(asked("NetLogout"), asked("NetLoginSecure") - 1);
    }

    /// The host's daylight saving begins on 29 March: the time from 02:00 to 03:00 does not exist there.
    void aClockIsComparedWithoutDaylightSaving()
    {
        const QByteArray zone = qgetenv("TZ");
        const auto restore = qScopeGuard([&zone] { zone.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", zone); });
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        run("setTimeByManual", {{"time", "2026-03-29 02:30:00"}});
        const StepOutcome outcome =
            m_factory->backEnd("dh")->systemStep("readTime", {}, camera)(StepControl());
        QCOMPARE(outcome.result, 0);
        QVERIFY2(outcome.text.startsWith("2026-03-29 02:30:"), qPrintable(outcome.text));
        QCOMPARE(deviceClockText(QDateTime({2026, 7, 1}, {12, 0}, Qt::UTC), QDateTime({2026, 1, 1}, {12, 0})),
                 "2026-07-01 12:00:00，快 181 天 0 小时");
    }

    void aResetMakesTheDeviceFactoryNew()
    {
        run("ntpConfig", ntp());
        run("resetSystem");
        QCOMPARE(results(), QStringList("10 0"));
        QCOMPARE(lastRequest("NetResetSystem"),
                 QJsonObject({{"size", 4}, {"outputSize", 4}, {"wait", 5000}}));
        m_clock->advance(60s);
        run("rebootDevice");
        QCOMPARE(results(), QStringList("10 12")); // not initialised
        QVERIFY(m_site->device(cameraMac)->isUninitialised());
        QVERIFY(configuration("NTP").isEmpty());
    }

    void invalidDataIsNotSent_data()
    {
        const auto addRow = dataTable<QString, QVariantMap>({"command", "data"});
        const auto row = [&addRow](const char *title, const QString &command, const QVariantMap &data = {}) {
            addRow(title, command, data);
        };
        row("unknown command", "format");
        row("no time", "setTimeByPC");
        row("half a time", "setTimeByManual", {{"time", "2024-01-01"}});
        const QStringList savingKeys = daylightSaving().keys();
        for (const QString &key : savingKeys) {
            if (key != "startDay" && key != "endDay")
                row(qPrintable("no " + key), "dstConfig", without(daylightSaving(), key));
        }
        row("sixth week", "dstConfig", with(daylightSaving(), "startWeek", 5));
        row("day 32", "dstConfig", with(with(daylightSaving(), "dstMode", 0), "startDay", 31));
        const QStringList ntpKeys = ntp().keys();
        for (const QString &key : ntpKeys)
            row(qPrintable("no " + key), "ntpConfig", without(ntp(), key));
        row("port 65536", "ntpConfig", with(ntp(), "ntpPort", 65536));
        row("zone 40", "ntpConfig", with(ntp(), "timeZone", 40));
        row("server too long", "ntpConfig", with(ntp(), "ntpServer", QString(256, 'n')));
        row("ninth day", "autoMaintain", {{"week", 8}, {"time", "00:00"}, {"autoReboot", true}});
        row("third standard", "videoStandard", {{"videoStandard", 3}});
    }

    void invalidDataIsNotSent()
    {
        QFETCH(QString, command);
        QFETCH(QVariantMap, data);
        m_site->requests().clear();
        run(command, data, {camera, recorder, absent});
        QCOMPARE(results(), QStringList({"10 999", "11 999", "99 5"})); // a failed login takes precedence
        QCOMPARE(m_site->requests().all().size(), asked("NetLoginSecure") + asked("NetLogout"));
    }

    void aNewPasswordIsUsedAfterwards()
    {
        m_store->changeRow(recorderMac, [](QJsonObject &row) { row.insert("password", "no longer known"); });
        run("loginCheck", {{"password", "secret1"}}, {camera, absent, recorder});
        QCOMPARE(results(), QStringList({"10 -1", "99 5", "11 -1"}));
        QCOMPARE(m_enabled->size(), 1);
        QCOMPARE(asked("NetLogout"), 0);

        run("modifyPassword", {{"password", "brand-new-2"}}, {absent, camera});
        QCOMPARE(results(), QStringList("10 0"));
        QCOMPARE(lastRequest("NetModifyPassword"),
                 QJsonObject({{"size", 256}, {"account", "admin"}, {"passwordLength", 11}, {"wait", 10000}}));
        QCOMPARE(asked("NetLoginSecure"), 3); // no additional login
        QCOMPARE(m_store->row(cameraMac).value("password").toString(), "brand-new-2");
        run("modifyPassword", {{"password", "newer-still-3"}}, {camera}); // the login is still open
        QCOMPARE(results(), QStringList("10 0"));

        run("cancelLogin", {}, {});
        QTRY_COMPARE(asked("NetLogout"), 2);
        run("modifyPassword", {{"password", "too-late-4"}}, {camera, recorder});
        QCOMPARE(results(), QStringList());
        run("rebootDevice", {}, {camera}); // with the account of the row
        QCOMPARE(results(), QStringList("10 0"));
    }

    void aRefusedPasswordChangesNothing()
    {
        run("loginCheck", {{"password", "wrong"}}, {camera, recorder});
        QCOMPARE(results(), QStringList({"10 2", "11 2"}));
        QCOMPARE(m_enabled->size(), 0);
        m_site->setFault(cameraMac, {sdk::demo::Fault::RefusesPasswordChange});
        run("loginCheck", {{"password", "secret1"}}, {camera, recorder});
        run("modifyPassword", {{"password", "brand-new-2"}}, {camera});
        QCOMPARE(results(), QStringList("10 999"));
        QVERIFY(!m_store->row(cameraMac).contains("password"));
        for (const QString &password :
             {QString(), QString(64, 'p')}) { // an empty one, and one that would be truncated
            run("modifyPassword", {{"password", password}}, {recorder});
            QCOMPARE(results(), QStringList("11 999"));
        }
        QCOMPARE(m_store->row(recorderMac).value("password").toString(), "secret1");
    }

    void openLoginsAreLoggedOut()
    {
        run("loginCheck", {{"password", "secret1"}}, {camera, recorder});
        run("loginCheck", {{"password", "secret1"}}, {camera});
        QCOMPARE(asked("NetLogout"), 1); // replaced
        run("loginCheck", {{"password", "wrong"}}, {camera});
        QCOMPARE(asked("NetLogout"), 2); // a failed check leaves no login
        m_results.reset();
        m_enabled.reset();
        m_factory.reset();
        QCOMPARE(asked("NetLogout"), 3);
        QCOMPARE(m_site->requests().of("NetCleanup").size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestSystemConfig)
#include "tst_systemconfig.moc"
