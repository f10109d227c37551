#include "device/systemtools.h"
#include "sdk/systemrecords.h"

#include <QDateTime>
#include <QTest>

class TestSystemTools : public QObject
{
    Q_OBJECT
private:
    const SystemTools m_tools;

private Q_SLOTS:
    void timeZonesAreInTheNumberingOfDevices()
    {
        const QStringList zones = SystemTools::timeZones();
        QCOMPARE(zones.size(), qsizetype(sdk::NtpRecord::timeZones));
        QCOMPARE(zones.at(9), "UTC+05:45");
        QCOMPARE(zones.at(32), "UTC-12:00");
        QCOMPARE(zones.mid(33), QStringList({"UTC-04:30", "UTC+10:30", "UTC+14:00", "UTC-09:30", "UTC+08:30",
                                             "UTC+08:45", "UTC+12:45"}));
        for (int index = 0; index < zones.size(); ++index)
            QCOMPARE(m_tools.timeZoneIndex(zones.at(index)), index);
        QCOMPARE(m_tools.timeZoneIndex("UTC-5:00"), 25);
        for (const QString text : {"", "UTC+15:00", "UTC", "+08:00", "UTC+8", "UTC+13:45", "UTC-2:30"})
            QCOMPARE(m_tools.timeZoneIndex(text), -1);
    }

    void aNewPasswordIsLookedAtInOrder_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("confirmation");
        QTest::addColumn<int>("fault");
        const auto row = [](const QString &password, const QString &confirmation, int fault) {
            QTest::newRow(qPrintable(password + '/' + confirmation)) << password << confirmation << fault;
        };
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

    void timeIsThatOfThisComputer()
    {
        const QDateTime time = QDateTime::fromString(m_tools.timeOfThisComputer(), "yyyy-MM-dd HH:mm:ss");
        QVERIFY(qAbs(time.secsTo(QDateTime::currentDateTime())) < 5);
    }
};

QTEST_GUILESS_MAIN(TestSystemTools)
#include "tst_systemtools.moc"
