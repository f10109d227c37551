// Reading data of devices: time zones, announcements, addresses of services and responses to calls.
#include "sdk/blocktext.h"
#include "sdk/onvif/discovery/founddevice.h"
#include "sdk/onvif/discovery/probemessage.h"
#include "sdk/onvif/services/deviceservice.h"
#include "sdk/onvif/session/clocktime.h"
#include "sdk/onvif/session/onvifsession.h"
#include "sdk/onvif/session/posixtimezone.h"
#include "sdk/onvif/soap/soapclient.h"
#include "tests/datatable.h"

using namespace Qt::StringLiterals;
using namespace sdk::onvif;

namespace {

QString textOf(const DateTime &time)
{
    return QDateTime(QDate(time.year, time.month, time.day), QTime(time.hour, time.minute, time.second))
        .toString(Qt::ISODate);
}

DateTime timeOf(const QString &text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return {time.date().year(), time.date().month(),  time.date().day(),
            time.time().hour(), time.time().minute(), time.time().second()};
}

HttpResponse httpResponse(const QByteArray &body, long status)
{
    HttpResponse response;
    response.end = HttpEnd::Responded;
    response.status = status;
    response.body = body.toStdString();
    return response;
}

QByteArray envelope(const QByteArray &body)
{
    return R"(<x:Envelope xmlns:x="http://www.w3.org/2003/05/soap-envelope"><x:Body>)" + body +
           "</x:Body></x:Envelope>";
}

QByteArray fault(const QByteArray &subcode)
{
    return envelope("<x:Fault><x:Code><x:Value>x:Sender</x:Value><x:Subcode><x:Value>t:" + subcode +
                    "</x:Value></x:Subcode></x:Code></x:Fault>");
}

QByteArray match(const QByteArray &content)
{
    return R"(<Envelope xmlns="http://www.w3.org/2003/05/soap-envelope"><Body>)"
           R"(<q:ProbeMatches xmlns:q="http://schemas.xmlsoap.org/ws/2005/04/discovery"><q:ProbeMatch>)" +
           content + "</q:ProbeMatch></q:ProbeMatches></Body></Envelope>";
}

MediaProfile profile(const char *token, const char *source, const char *encoder, int width)
{
    MediaProfile made;
    made.token = token;
    made.sourceToken = source;
    if (encoder)
        made.video = VideoEncoder{.token = encoder, .width = width, .height = 100};
    return made;
}

} // namespace

class OnvifReadersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheTimeOfAZone_data()
    {
        const auto row = dataTable<QString, bool, QString, QString>({"zone", "saving", "utc", "shown"});
        row("east", u"CST-8"_s, false, u"2026-07-01T23:30:00"_s, u"2026-07-02T07:30:00"_s);
        row("quoted name, half an hour", u"<+0530>-5:30"_s, false, u"2026-01-01T00:00:00"_s,
            u"2026-01-01T05:30:00"_s);
        row("summer in the north", u"CET-1CEST,M3.5.0/2,M10.5.0/3"_s, true, u"2026-07-01T10:00:00"_s,
            u"2026-07-01T12:00:00"_s);
        row("last hour before summer", u"CET-1CEST,M3.5.0,M10.5.0/3"_s, true, u"2026-03-29T00:59:00"_s,
            u"2026-03-29T01:59:00"_s);
        row("first hour of summer", u"CET-1CEST,M3.5.0,M10.5.0/3"_s, true, u"2026-03-29T01:00:00"_s,
            u"2026-03-29T03:00:00"_s);
        row("rule not applied", u"CET-1CEST,M3.5.0,M10.5.0/3"_s, false, u"2026-07-01T10:00:00"_s,
            u"2026-07-01T11:00:00"_s);
        row("summer in the south", u"AEST-10AEDT,M10.1.0,M4.1.0/3"_s, true, u"2026-01-01T00:00:00"_s,
            u"2026-01-01T11:00:00"_s);
        row("west, half an hour of saving", u"XXX3YYY2:30,M3.2.0,M11.1.0"_s, true, u"2026-07-01T12:00:00"_s,
            u"2026-07-01T09:30:00"_s);
        row("rule by days of the year is none", u"CET-1CEST,J60,J300"_s, true, u"2026-07-01T10:00:00"_s,
            u"2026-07-01T11:00:00"_s);
        row("no zone", u"local time"_s, true, u"2026-07-01T10:00:00"_s, u"2026-07-01T10:00:00"_s);
    }

    void showsTheTimeOfAZone()
    {
        QFETCH(QString, zone);
        QFETCH(bool, saving);
        QFETCH(QString, utc);
        QFETCH(QString, shown);
        DeviceClock clock;
        clock.timeZone = zone.toStdString();
        clock.daylightSaving = saving;
        clock.utc = timeOf(utc);
        QCOMPARE(textOf(*shownTime(clock)), shown);
        QCOMPARE(textOf(utcOfShown(timeOf(shown), clock)), utc);
        // The written string is the same zone.
        if (const auto read = readPosixTimeZone(clock.timeZone)) {
            clock.timeZone = read->text();
            QCOMPARE(textOf(*shownTime(clock)), shown);
        }
    }

    void readsAnAnnouncement()
    {
        const QByteArray datagram =
            match("<a:EndpointReference xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\">"
                  "<a:Address>urn:uuid:5F5A69C2-E0AE-504F-829B-00000000000B</a:Address></a:EndpointReference>"
                  "<q:Types>n:NetworkVideoTransmitter tds:Device</q:Types>"
                  "<q:Scopes>onvif://www.onvif.org/name/T%C3%BCr%20A  ONVIF://www.onvif.org/hardware/SC-200\n"
                  "onvif://www.onvif.org/name/second onvif://www.onvif.org/MAC/02-1A-C5-00-40-17"
                  "  odd://www.onvif.org/location/x</q:Scopes>"
                  "<q:XAddrs>ftp://192.0.2.7/ http://user@192.0.2.7/ http://192.0.2.9/a "
                  "http://192.0.2.7:8000/b</q:XAddrs>");
        const auto found = readDiscoveryMessage(datagram.toStdString()).announcements;
        QCOMPARE(found.size(), 1U);
        FoundDevice device;
        device.address = "192.0.2.7";
        device.announcement = found.front();
        device.service = serviceOf(found.front(), device.address);
        const sdk::SearchResponse response = searchResponseOf(device);
        QCOMPARE(QString::fromStdString(found.front().uuid), u"5f5a69c2-e0ae-504f-829b-00000000000b"_s);
        QVERIFY(sdk::blockText(response.device.deviceName) == "Tür A");
        QVERIFY(sdk::blockText(response.device.detailModel) == "SC-200");
        QVERIFY(sdk::blockText(response.device.mac) == "02:1a:c5:00:40:17");
        QVERIFY(sdk::blockText(response.device.uuid) == found.front().uuid);
        QCOMPARE(response.device.port, 8000);
        QVERIFY(device.service.path == "/b");
        // The service of an announcement from another address is at that address.
        const ServiceAddress elsewhere = serviceOf(found.front(), "192.0.2.1");
        QVERIFY(elsewhere.url() == "http://192.0.2.1:80/a");
    }

    void ignoresOtherDatagrams_data()
    {
        // others: announcements of devices of another type
        using Kind = DiscoveryMessage::Kind;
        const auto row = dataTable<QByteArray, Kind, int>({"datagram", "kind", "others"});
        row("nothing", "", Kind::Unreadable, 0);
        row("no XML", "HTTP/1.1 200 OK\r\n\r\n", Kind::Unreadable, 0);
        row("another device", match("<q:Types xmlns:w=\"u\">w:Printer</q:Types>"), Kind::Announcement, 1);
        row("another namespace", match({}).replace("2005/04/discovery", "2009/04/discovery"),
            Kind::Unreadable, 0);
        row("the probe of another client", QByteArray::fromStdString(probeMessage(ProbeKind::Anything)),
            Kind::Request, 0);
        row("a document type", "<!DOCTYPE x [<!ENTITY e 'e'>]>" + match({}), Kind::Unreadable, 0);
        QByteArray deep;
        for (int depth = 0; depth < 100; ++depth)
            deep = "<d>" + deep + "</d>";
        row("too deep", match(deep), Kind::Unreadable, 0);
        QByteArray attributes;
        for (int number = 0; number < 100; ++number)
            attributes += " a" + QByteArray::number(number) + "='1'";
        row("too many attributes", match("<d" + attributes + "/>"), Kind::Unreadable, 0);
    }

    void ignoresOtherDatagrams()
    {
        QFETCH(QByteArray, datagram);
        QFETCH(DiscoveryMessage::Kind, kind);
        QFETCH(int, others);
        const DiscoveryMessage message = readDiscoveryMessage(datagram.toStdString());
        QVERIFY(message.announcements.empty());
        QVERIFY(message.kind == kind);
        QCOMPARE(message.otherDevices, static_cast<std::size_t>(others));
    }

    void keepsToTheDevice_data()
    {
        const auto row = dataTable<QString, QString>({"named", "asked"});
        row("its own port", u"http://192.0.2.7:8080/onvif/media?x=1#y"_s,
            u"http://192.0.2.7:8080/onvif/media?x=1"_s);
        row("another host", u"https://198.51.100.1:444/onvif/media"_s,
            u"http://192.0.2.7:8000/onvif/media"_s);
        row("no path", u"http://192.0.2.7"_s, u"http://192.0.2.7:80/"_s);
        row("IPv6", u"http://[fe80::1]/m"_s, u"http://192.0.2.7:8000/m"_s);
        row("a file", u"file:///etc/passwd"_s, {});
        row("an account", u"http://a:b@192.0.2.7/"_s, {});
        row("a port that is none", u"http://192.0.2.7:99999/"_s, {});
        row("a line feed", u"http://192.0.2.7/a\r\nX: y"_s, {});
    }

    void keepsToTheDevice()
    {
        QFETCH(QString, named);
        QFETCH(QString, asked);
        const ServiceAddress reached = {.host = "192.0.2.7", .port = 8000};
        const auto address = serviceAt(reached, named.toStdString());
        QCOMPARE(address ? QString::fromStdString(address->url()) : QString(), asked);
    }

    void readsTheOutcomeOfACall_data()
    {
        const auto row = dataTable<QByteArray, long, quint32>({"body", "status", "error"});
        const auto code = [](sdk::NetError error) {
            return static_cast<quint32>(error);
        };
        row("a response", envelope("<a xmlns=\"u\"/>"), 200, 0);
        row("an empty body", envelope({}), 200, code(sdk::NetError::ProtocolMismatch));
        row("a page", "<html><body>Hello</body></html>", 200, code(sdk::NetError::ProtocolMismatch));
        row("no XML, not authorised", "denied", 401, code(sdk::NetError::WrongPassword));
        row("not found", "", 404, code(sdk::NetError::NotSupported));
        row("forbidden", fault("NotAuthorized"), 403, code(sdk::NetError::Refused));
        row("wrong password by fault", fault("NotAuthorized"), 400, code(sdk::NetError::WrongPassword));
        row("a fault with status 200", fault("ActionNotSupported"), 200, code(sdk::NetError::NotSupported));
        row("a bad value", fault("InvalidArgVal"), 500, code(sdk::NetError::InvalidValue));
        row("another fault", fault("Whatever"), 500, code(sdk::NetError::Refused));
        row("a response with an error status", envelope("<a xmlns=\"u\"/>"), 500,
            code(sdk::NetError::ProtocolMismatch));
        row("the older envelope",
            R"(<o:Envelope xmlns:o="http://schemas.xmlsoap.org/soap/envelope/"><o:Body><o:Fault>)"
            R"(<faultcode>ter:NotAuthorized</faultcode></o:Fault></o:Body></o:Envelope>)",
            500, code(sdk::NetError::WrongPassword));
    }

    void readsTheOutcomeOfACall()
    {
        QFETCH(QByteArray, body);
        QFETCH(long, status);
        QFETCH(quint32, error);
        QCOMPARE(static_cast<quint32>(readSoapResponse(httpResponse(body, status)).error), error);
    }

    void findsMainAndSubStream()
    {
        const auto channels = channelsOf({
            profile("p1", "s1", "e2", 640),
            profile("p2", "s1", "e1", 1920),
            profile("p3", "s1", "e1", 1920), // the same stream
            profile("p4", "s2", "e4", 640),
            profile("p5", "", "e5", 640),
            profile("p6", "s3", nullptr, 0),
        });
        QCOMPARE(channels.size(), 2U);
        QVERIFY(channels[0].mainProfile == "p2" && channels[0].subProfile == "p1");
        QVERIFY(channels[1].mainProfile == "p4" && channels[1].subProfile.empty());
    }

    void readsDurations_data()
    {
        const auto row = dataTable<QByteArray, int>({"text", "seconds"});
        row("seconds", "PT5S", 5);
        row("all", "P1DT1H1M1.5S", 24 * 3600);
        row("minutes", "PT1M30S", 90);
        row("for ever", "P99999D", 24 * 3600);
        row("no number", "PTxS", 0);
        row("not a number", "PTnanS", 0);
        row("infinite", "PTinfS", 0);
        row("infinite in an unknown unit", "PinfY", 0);
        row("no unit", "PT5", 0);
    }

    void readsDurations()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, seconds);
        QCOMPARE(static_cast<int>(xmlDuration(text.toStdString()).count()), seconds);
    }
};

QTEST_GUILESS_MAIN(OnvifReadersTest)
#include "tst_onvifreaders.moc"
