#include "device/forms/systemtools.h"
#include "device/registry/loginresult.h"
#include "device/registry/passwordstrength.h"
#include "tests/datatable.h"

class TestSystemTools : public QObject
{
    Q_OBJECT
private:
    const SystemTools m_tools;

private Q_SLOTS:
    void timeZonesHaveTheNumbersOfDevices()
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

    void aNewPasswordIsCheckedInOrder_data()
    {
        const auto row = namedTable<QString, QString, int>({"password", "confirmation", "fault"});
        row("", "", SystemTools::TooWeak);
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

    void aNewPasswordIsCheckedInOrder()
    {
        QFETCH(QString, password);
        QFETCH(QString, confirmation);
        QTEST(int(m_tools.newPasswordFault(password, confirmation)), "fault");
    }

    void gradesPasswords_data()
    {
        const auto row = namedTable<QString, int>({"password", "grade"});
        row("_", 0);
        row("ABCdefgh", 1);
        row("!!", 1);
        row("abc def", 2);
        row("Ab1!", 3);
        row("1-密码a", 3);
    }

    void gradesPasswords()
    {
        QFETCH(QString, password);
        QTEST(passwordStrength(password), "grade");
    }

    void resultsAreNamed()
    {
        const std::array names = {std::pair(1, "账号不存在"), std::pair(2, "密码错误"),
                                  std::pair(3, "账号被锁定"), std::pair(5, "网络异常"),
                                  std::pair(6, "协议不匹配"), std::pair(13, "设备已存在"),
                                  std::pair(998, "命令失败"), std::pair(4711, "未知错误 4711")};
        for (const auto &[result, name] : names)
            QCOMPARE(resultName(result), name);
    }
};

QTEST_GUILESS_MAIN(TestSystemTools)
#include "tst_systemtools.moc"
