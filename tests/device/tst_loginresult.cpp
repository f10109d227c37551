#include "device/loginresult.h"
#include "device/passwordstrength.h"
#include "tests/datatable.h"

#include <QMap>

class TestLoginResult : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void mapsErrorsOfTheLibrary_data()
    {
        const auto row = namedTable<quint32, int>({"error", "result"});
        row(0x80000003, 6);
        row(0x80000064, 2);
        row(0x80000096, 2);
        row(0x80000097, 2);
        row(0x80000065, 1);
        row(0x80000067, 4);
        row(0x80000098, 4);
        row(0x80000068, 3);
        row(0x8000006B, 5);
        row(0x8000006C, 5);
        row(0x80000002, 5);
        row(0x80000013, 12);
        row(0x64, 2); // without the high bit
        row(0, 5);
        row(0xFFFFFFFF, 5);
    }

    void mapsErrorsOfTheLibrary()
    {
        QFETCH(quint32, error);
        QTEST(resultCode(loginResultOf(error)), "result");
    }

    void resultsAreNamed()
    {
        const QMap<int, QString> names = {{-1, "未知"},
                                          {0, "成功"},
                                          {1, "账号不存在"},
                                          {2, "密码错误"},
                                          {3, "账号被锁定"},
                                          {4, "账号已登录"},
                                          {5, "网络异常"},
                                          {6, "协议不匹配"},
                                          {7, "设备未初始化"},
                                          {12, "设备不支持此操作"},
                                          {13, "设备已存在"},
                                          {998, "命令失败"},
                                          {999, "设备拒绝了此操作"},
                                          {4711, "未知错误 4711"}};
        for (auto name = names.cbegin(); name != names.cend(); ++name)
            QCOMPARE(resultName(name.key()), name.value());
    }

    void gradesPasswords_data()
    {
        const auto row = namedTable<QString, int>({"password", "grade"});
        row("", 0);
        row("_", 0);
        row("abcdefgh", 1);
        row("ABCdefgh", 1);
        row("12345678", 1);
        row("!!", 1);
        row("abc_def12", 2);
        row("abc def", 2);
        row("Ab1!", 3);
        row("1-密码a", 3);
    }

    void gradesPasswords()
    {
        QFETCH(QString, password);
        QTEST(passwordStrength(password), "grade");
    }
};

QTEST_GUILESS_MAIN(TestLoginResult)
#include "tst_loginresult.moc"
