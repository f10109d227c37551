// Requests sent by the fields of the system page.
#include "tests/datatable.h"
#include "tests/device/dh/configsite.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene =
    "    width: 900; height: 700; visible: true\n"
    "    SystemPanels {\n"
    "        anchors.fill: parent\n"
    "        objectName: 'panels'\n"
    "        available: true; unavailableText: ''; locked: false; upgradingCount: 0; timeZone: 'UTC+08:00'\n"
    "        passwordTime: SystemPasswordTime { deviceFactory: factory; changing: false }\n"
    "        deviceFactory: factory\n"
    "        onActionRequested: (command, title, data) =>\n"
    "            factory.systemConfig('dh', command, data, ['192.168.1.1:37777'])\n"
    "    }\n";

/// "field=value" of a request's configuration text, in alphabetical order.
QString fieldsOf(const QJsonObject &fields)
{
    QStringList texts;
    for (auto field = fields.begin(); field != fields.end(); ++field)
        texts.append(field.key() + '=' + field.value().toVariant().toString());
    return texts.join(' ');
}

} // namespace

class TestSystemPanels : public QObject
{
    Q_OBJECT
private:
    ConfigSite m_site{{configDevice(1, "IPC", 1)}};
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;

private Q_SLOTS:
    void initTestCase()
    {
        m_window = openScene(m_engine, scene, {{"factory", m_site.factory.get()}});
        QVERIFY(m_window && QTest::qWaitForWindowExposed(m_window.get()));
    }

    void cleanupTestCase() { m_window.reset(); }

    void fieldsAreSentAsEntered_data()
    {
        // fields: property of "field" by its name
        const auto row = dataTable<int, QVariantMap, QString, QString>({"panel", "fields", "button", "sent"});
        const QVariantMap points = {{"dstEnableBox.checked", true},    {"startMonthBox.currentIndex", 3},
                                    {"startWeekBox.currentIndex", 1},  {"startWeekDayBox.currentIndex", 5},
                                    {"startDayBox.kept", 11},          {"startTimeField.text", "01:15"},
                                    {"endMonthBox.currentIndex", 10},  {"endWeekBox.currentIndex", 4},
                                    {"endWeekDayBox.currentIndex", 6}, {"endDayBox.kept", 29},
                                    {"endTimeField.text", "04:45"}};
        QVariantMap byDate = points;
        byDate.insert("dstByDate.checked", true);
        QVariantMap byWeek = points;
        byWeek.insert("dstByWeek.checked", true);
        row("daylight saving by week", 1, byWeek, "dstApplyButton",
            "beginDay=5 beginHour=1 beginMinute=15 beginMonth=4 beginWeek=2 daylightSaving=true endDay=6 "
            "endHour=4 endMinute=45 endMonth=11 endWeek=-1");
        row("daylight saving by date", 1, byDate, "dstApplyButton",
            "beginDay=12 beginHour=1 beginMinute=15 beginMonth=4 beginWeek=0 daylightSaving=true "
            "endDay=30 endHour=4 endMinute=45 endMonth=11 endWeek=0");
        row("zone and NTP", 1,
            QVariantMap{{"timeZoneBox.currentIndex", 12},
                        {"ntpSetBox.checked", true},
                        {"ntpServerField.text", " time.example "},
                        {"ntpPortField.text", "1123"},
                        {"updatePeriodField.text", "77"}},
            "ntpApplyButton", "address=time.example enabled=true port=1123 timeZone=12 updatePeriod=77");
        const QVariantMap maintenance = {{"autoRebootBox.checked", true},
                                         {"maintenanceDayBox.currentIndex", 3},
                                         {"maintenanceTimeField.text", "05:40"}};
        row("maintenance", 2, maintenance, "autoMaintainButton",
            "rebootDay=3 rebootEnabled=true rebootHour=5 rebootMinute=40");
        row("no maintenance", 2,
            QVariantMap{{"autoRebootBox.checked", false}, {"maintenanceTimeField.text", "05:40"}},
            "autoMaintainButton", "rebootDay=-1 rebootEnabled=false rebootHour=5 rebootMinute=40");
        const char *standard = "videoStandardBox.currentIndex";
        row("video standard 1", 5, {{standard, 0}}, "videoStandardButton", "standard=1");
        row("video standard 2", 5, {{standard, 1}}, "videoStandardButton", "standard=2");
    }

    void anInvalidServerIsNotSent_data()
    {
        const auto row = dataTable<QString, bool>({"server", "sent"});
        row("address", "192.168.1.1", true);
        row("IPv6 address", "fd00::1", true);
        row("name in another script", QString::fromUtf8("时间.example"), true);
        row("address with a slip", "192.168.1.300", false);
        row("two words", "time server", false);
        row("empty label", "time..example", false);
        row("hyphen at the end", "time-.example", false);
        row("broken IPv6 address", "fd00::1::2", false);
    }

    void anInvalidServerIsNotSent()
    {
        QFETCH(QString, server);
        m_window->findChild<QObject *>("panels")->setProperty("currentPanel", 1);
        m_window->findChild<QObject *>("timeZoneBox")->setProperty("currentIndex", 12);
        m_window->findChild<QObject *>("ntpSetBox")->setProperty("checked", true);
        QObject *field = m_window->findChild<QObject *>("ntpServerField");
        QVERIFY(field->setProperty("text", server));
        m_site.site->requests().clear();
        QVERIFY(QMetaObject::invokeMethod(m_window->findChild<QObject *>("ntpApplyButton"), "press"));
        QFETCH(bool, sent);
        QCOMPARE(m_site.asked("NetSetNewConfig").size(), sent ? 1 : 0);
        QCOMPARE(field->property("errorText").toString().isEmpty(), sent);
    }

    void fieldsAreSentAsEntered()
    {
        QFETCH(int, panel);
        QFETCH(QVariantMap, fields);
        QFETCH(QString, button);
        QObject *panels = m_window->findChild<QObject *>("panels");
        QVERIFY(panels->setProperty("currentPanel", panel));
        for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
            QObject *found = m_window->findChild<QObject *>(field.key().section('.', 0, 0));
            QVERIFY2(found, qPrintable(field.key()));
            QVERIFY(found->setProperty(field.key().section('.', 1).toLatin1().constData(), field.value()));
        }
        m_site.site->requests().clear();
        QVERIFY(QMetaObject::invokeMethod(m_window->findChild<QObject *>(button), "press"));
        QJsonObject sent;
        if (panel == 5) {
            QCOMPARE(m_site.asked("NetSetItem").size(), 1);
            sent = {{"standard", m_site.asked("NetSetItem").first().value("standard")}};
        } else {
            QCOMPARE(m_site.asked("NetSetNewConfig").size(), 1);
            sent =
                m_site.asked("NetSetNewConfig").first().value("text").toObject().begin().value().toObject();
            sent.remove("timeFormat");
        }
        QTEST(fieldsOf(sent), "sent");
    }
};

QTEST_MAIN(TestSystemPanels)
#include "tst_systempanels.moc"
