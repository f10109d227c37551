// The encoding of a command, and the evaluation of the headers of its response.
#include "cgi/cgirequest.h"
#include "cgi/responsekind.h"
#include "tests/datatable.h"

#include <QStringEncoder>

class TestCgiRequest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void encodesAddresses_data()
    {
        // path: after the address
        const auto row = dataTable<QString, QByteArray>({"path", "encoded"});
        row("plain", ":80/cgi-bin/a.cgi?action=read&name=time", ":80/cgi-bin/a.cgi?action=read&name=time");
        row("index in brackets", "/cgi-bin/a?item[0].name=x", "/cgi-bin/a?item[0].name=x");
        row("space", "/cgi-bin/a b?c=d e", "/cgi-bin/a%20b?c=d%20e");
        row("Chinese", "/cgi-bin/a?n=东", "/cgi-bin/a?n=%E4%B8%9C");
        // A lone percent sign shows that the input is not encoded.
        row("lone percent sign", "/cgi-bin/a?n=50%&m=%41", "/cgi-bin/a?n=50%25&m=%2541");
        row("line breaks", "/cgi-bin/a?b=c\r\nX-Smuggled: 1", "/cgi-bin/a?b=c%0D%0AX-Smuggled:%201");
    }

    void encodesAddresses()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, encoded);
        QCOMPARE(CgiRequest("http://10.0.0.2" + path, {}, {}).url(), "http://10.0.0.2" + encoded);
        QCOMPARE(CgiRequest("http://[10.0.0.2" + path, {}, {}).url(), QByteArray());
    }

    void refusesAmbiguousCredentials_data()
    {
        const auto row = dataTable<QString, QString, bool>({"user", "password", "isRefused"});
        row("colon in the password", "admin", "a:b@c", false);
        row("others", QStringLiteral("管理员@site"), QStringLiteral("密码%\r\n"), false);
        row("colon in the name", "ad:min", "x", true);
        row("line break in the name", "admin\"\r\nX-Smuggled: 1", "x", true);
        row("zero in the password", "admin", QStringLiteral("a") + QChar(QChar::Null), true);
    }

    void refusesAmbiguousCredentials()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        const CgiRequest request(QStringLiteral("http://10.0.0.2/cgi-bin/a"), user, password);
        QTEST(!request.refusal().isEmpty(), "isRefused");
    }

    void choosesTheFileByTheHeaders_data()
    {
        const auto addRow = dataTable<QByteArray, ResponseKind, QString>({"headers", "kind", "ending"});
        const auto row = [&addRow](const char *type, ResponseKind kind, const char *ending) {
            addRow(type, QByteArray("HTTP/1.1 200 OK\r\nContent-Type: ") + type + "\r\n\r\n", kind, ending);
        };
        row("text/plain;charset=utf-8", ResponseKind::Text, "");
        row("image/jpeg", ResponseKind::Image, ".jpg");
        row("image/png", ResponseKind::Image, ".png");
        row("image/svg+xml", ResponseKind::Image, ".svg");
        row("image/webp", ResponseKind::Image, ".webp");
        row("image/tiff", ResponseKind::Image, ".jpg");
        row("Image/PNG", ResponseKind::Text, "");
        row("application/octet-stream", ResponseKind::Recording, ".dav");
        row("multipart/mixed; image/png; octet-stream", ResponseKind::Image, ".png");
    }

    void choosesTheFileByTheHeaders()
    {
        QFETCH(QByteArray, headers);
        QTEST(responseKind(headers), "kind");
        QTEST(responseFileEnding(headers), "ending");
    }

    void readsTextsInTheirEncoding_data()
    {
        const auto row = dataTable<QByteArray, QByteArray, QString>({"type", "body", "text"});
        const QString text = "name=北门\r\n";
        const QByteArray gbk("name=\xB1\xB1\xC3\xC5\r\n");
        const QByteArray utf16 = QStringEncoder(QStringEncoder::Utf16LE).encode(text);
        row("UTF-8", "text/plain", text.toUtf8(), text);
        row("UTF-8, announced as another one", "text/plain; charset=ISO-8859-1", text.toUtf8(), text);
        row("GBK", "text/plain; charset=GBK", gbk, text);
        row("GB2312 in quotes", "text/html; Charset=\"gb2312\"; x=y", gbk, text);
        row("UTF-16 with a mark", "text/plain", "\xFF\xFE" + utf16, text);
        row("UTF-16 without a character beyond ASCII", "text/plain; charset=utf-16le",
            QByteArray("O\0K\0", 4), "OK");
        row("not announced", "text/plain", "a=\xB1", QString("a=") + QChar(QChar::ReplacementCharacter));
        row("announced as nothing known", "text/plain; charset=thing", "a=\xB1",
            QString("a=") + QChar(QChar::ReplacementCharacter));
        row("a 0 in a text", "text/plain", QByteArray("a\0b", 3), QString("a%1b").arg(QChar(QChar::Null)));
    }

    void readsTextsInTheirEncoding()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, body);
        // The headers of an earlier refusal do not determine the encoding of this response.
        const QByteArray headers =
            "HTTP/1.1 401 Unauthorized\r\nContent-Type: text/html; charset=Big5\r\n\r\n"
            "HTTP/1.1 200 OK\r\nContent-Type: " +
            type + "\r\nX-Other: charset=Big5\r\n\r\n";
        QTEST(responseText(headers, body), "text");
    }
};

QTEST_GUILESS_MAIN(TestCgiRequest)
#include "tst_cgirequest.moc"
