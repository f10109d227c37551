#include "device/systemtools.h"
#include "tests/datatable.h"

class TestSystemTools : public QObject
{
    Q_OBJECT
private:
    const SystemTools m_tools;

private Q_SLOTS:
    void timeZonesAreInTheNumberingOfDevices()
    {
        const QString zones =
            "+00:00 +01:00 +02:00 +03:00 +03:30 +04:00 +04:30 +05:00 +05:30 +05:45 +06:00 +06:30 +07:00 "
            "+08:00 +09:00 +09:30 +10:00 +11:00 +12:00 +13:00 -01:00 -02:00 -03:00 -03:30 -04:00 -05:00 "
            "-06:00 -07:00 -08:00 -09:00 -10:00 -11:00 -12:00 -04:30 +10:30 +14:00 -09:30 +08:30 +08:45 "
            "+12:45";
        QCOMPARE(SystemTools::timeZones().join(' ').remove("UTC"), zones);
        QCOMPARE(m_tools.timeZoneIndex("UTC-5:00"), 25);
        for (const QString text : {"", "UTC+15:00", "UTC", "+08:00", "UTC+8", "UTC+13:45", "UTC-2:30"})
            QCOMPARE(m_tools.timeZoneIndex(text), -1);
    }

    void aNewPasswordIsLookedAtInOrder_data()
    {
        const auto row = namedTable<QString, QString, int>({"password", "confirmation", "fault"});
        row("", "", SystemTools::TooWeak);
        row("abcdefgh", "", SystemTools::TooWeak);
        row("________1", "________1", SystemTools::TooWeak);
        row("abc_def12", "", SystemTools::NoConfirmation);
        row("abc_def12", "abc_def13", SystemTools::NotTheSame);
        row("Ab1!", "Ab1!", SystemTools::LengthOutOfRange);
        row("abcdef1", "abcdef1", SystemTools::LengthOutOfRange);
        row("abcdef12", "abcdef12", SystemTools::NoFault);
        row(QString(16, 'a') + QString(16, '1'), QString(16, 'a') + QString(16, '1'), SystemTools::NoFault);
        row(QString(16, 'a') + QString(17, '1'), QString(16, 'a') + QString(17, '1'),
            SystemTools::LengthOutOfRange);
    }

    void aNewPasswordIsLookedAtInOrder()
    {
        QFETCH(QString, password);
        QFETCH(QString, confirmation);
        QTEST(int(m_tools.newPasswordFault(password, confirmation)), "fault");
    }
};

QTEST_GUILESS_MAIN(TestSystemTools)
#include "tst_systemtools.moc"
