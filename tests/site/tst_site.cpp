// A site on a network: scripts/lab runs this on the host of the installer.
#include "tests/site/siteclient.h"

#include <QFile>
#include <QNetworkDatagram>
#include <QTest>

using namespace Qt::StringLiterals;

namespace site {

namespace {

const Login rightToken = {Login::Kind::Token, u"Right-1"_s};

/// A device's first stream by RTSP: its description, or its refusal.
Response describe(const QString &address, const QByteArray &path, const QString &password)
{
    const QByteArray uri = "rtsp://" + address.toLatin1() + path;
    const auto request = [&uri](const QByteArray &fields) {
        return "DESCRIBE " + uri + " RTSP/1.0\r\nCSeq: 1\r\n" + fields + "\r\n";
    };
    const Response refusal = exchange(address, 554, request({}));
    return exchange(address, 554, request(digestHeader(refusal, password, "DESCRIBE", uri)));
}

/// True if the types in a response contain that of a device, whose prefix is declared.
bool hasDeviceType(const Response &response)
{
    const QStringList types = response.text(u"Types"_s).split(u' ');
    return std::any_of(types.begin(), types.end(), [&response](const QString &type) {
        const QByteArray prefix = type.section(u':', 0, 0).toUtf8();
        return type == QString::fromUtf8(prefix + ":Device") &&
               response.body.contains("xmlns:" + prefix + "=\"http://www.onvif.org/ver10/device/wsdl\"");
    });
}

/// The addresses in the responses to a probe, until `count` have arrived or the timeout has passed. Responses
/// without the type of a device do not count.
QStringList probe(const QString &group, const QByteArray &types, int count, int patience = 3000)
{
    QUdpSocket socket;
    const bool isIpv6 = group.contains(u':');
    socket.bind(isIpv6 ? QHostAddress(QHostAddress::AnyIPv6) : QHostAddress(QHostAddress::AnyIPv4), 0);
    QHostAddress address(group);
    if (isIpv6)
        address.setScopeId(u"eth0"_s);
    socket.writeDatagram(
        "<e:Envelope xmlns:e=\"http://www.w3.org/2003/05/soap-envelope\" "
        "xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\" "
        "xmlns:n=\"http://www.onvif.org/ver10/network/wsdl\"><e:Header><a:MessageID>uuid:1</a:MessageID>"
        "</e:Header><e:Body><Probe xmlns=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\"><Types>" +
            types + "</Types></Probe></e:Body></e:Envelope>",
        address, 3702);
    QStringList found;
    while (found.size() < count && socket.waitForReadyRead(patience)) {
        while (socket.hasPendingDatagrams()) {
            Response response;
            response.body.resize(socket.pendingDatagramSize());
            socket.readDatagram(response.body.data(), response.body.size());
            if (hasDeviceType(response))
                found.append(response.text(u"XAddrs"_s));
        }
    }
    found.sort();
    return found;
}

QString version(const QString &address)
{
    return ask(address, deviceOperation("GetDeviceInformation"), rightToken).text(u"FirmwareVersion"_s);
}

} // namespace

class TestSite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void devicesAreFound_data();
    void devicesAreFound();
    void loginsAreChecked_data();
    void loginsAreChecked();
    void accountLocksAcrossServices();
    void initialisation();
    void clockHasZone();
    void streamFollowsEncoder();
    void unconnectedChannelHasNoProfile();
    void addressChanges();
    void firmwareIsInstalled();
    void resetMakesFactoryNew();
};

void TestSite::devicesAreFound_data()
{
    const QString path = u"/onvif/device_service"_s;
    QTest::addColumn<QString>("group");
    QTest::addColumn<QByteArray>("types");
    QTest::addColumn<QStringList>("addresses");
    QTest::newRow("IPv4") << u"239.255.255.250"_s << QByteArray("n:NetworkVideoTransmitter")
                          << QStringList{u"http://192.168.7.11"_s + path,
                                         u"http://192.168.7.12:8080"_s + path,
                                         u"http://192.168.7.13"_s + path, u"http://192.168.7.14"_s + path,
                                         u"http://192.168.7.15"_s + path};
    QTest::newRow("IPv6") << u"ff02::c"_s << QByteArray()
                          << QStringList{u"http://[fd00:1ac5:1::61]"_s + path};
    QTest::newRow("another type") << u"239.255.255.250"_s << QByteArray("n:NetworkVideoDisplay")
                                  << QStringList();
    QTest::newRow("by its own address")
        << u"192.168.8.17"_s << QByteArray() << QStringList{u"http://192.168.8.17"_s + path};
}

void TestSite::devicesAreFound()
{
    QFETCH(QString, group);
    QFETCH(QByteArray, types);
    QFETCH(QStringList, addresses);
    // One more than expected, to detect a surplus response; a short timeout is sufficient for that.
    constexpr int shortWhile = 700;
    QCOMPARE(probe(group, types, static_cast<int>(addresses.size()) + 1, shortWhile), addresses);
}

void TestSite::loginsAreChecked_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<Login>("login");
    QTest::addColumn<QString>("outcome");
    const QByteArray open = deviceOperation("GetSystemDateAndTime");
    const QByteArray closed = deviceOperation("GetDeviceInformation");
    const QString camera = u"192.168.7.11"_s;
    const QString dome = u"192.168.7.14"_s;
    const auto row = [](const char *name) -> QTestData & {
        return QTest::newRow(name);
    };
    row("none is needed") << camera << open << Login() << u"200"_s;
    row("none") << camera << closed << Login() << u"401 NotAuthorized"_s;
    row("token") << camera << closed << rightToken << u"200"_s;
    row("wrong token") << camera << closed << Login{Login::Kind::Token, u"Wrong"_s} << u"400 NotAuthorized"_s;
    row("token of a wrong clock") << camera << closed << Login{Login::Kind::Token, u"Right-1"_s, -10}
                                  << u"400 NotAuthorized"_s;
    row("digest") << camera << closed << Login{Login::Kind::Digest, u"Right-1"_s} << u"200"_s;
    row("wrong digest") << camera << closed << Login{Login::Kind::Digest, u"Wrong"_s}
                        << u"401 NotAuthorized"_s;
    row("SHA-256") << dome << closed << Login{Login::Kind::Digest, u"Right-4"_s} << u"200"_s;
    row("token where none is taken") << dome << closed << Login{Login::Kind::Token, u"Right-4"_s}
                                     << u"400 NotAuthorized"_s;
    row("unknown operation") << camera << deviceOperation("MakeCoffee") << rightToken
                             << u"500 ActionNotSupported"_s;
    row("no XML") << camera << QByteArray("<a") << Login() << u"400 WellFormed"_s;
}

void TestSite::loginsAreChecked()
{
    QFETCH(QString, address);
    QFETCH(QByteArray, operation);
    QFETCH(Login, login);
    QTEST(ask(address, operation, login).outcome(), "outcome");
}

void TestSite::accountLocksAcrossServices()
{
    const QString address = u"192.168.7.15"_s;
    const Login wrong = {Login::Kind::Token, u"Wrong"_s};
    const Login right = {Login::Kind::Token, u"Right-5"_s};
    const QByteArray media = mediaOperation("GetProfiles");
    // Prefixes depend on the make: this one declares none.
    QVERIFY(!ask(address, deviceOperation("GetHostname")).body.contains("tds:"));
    // An algorithm that was not offered proves no password, neither a right nor a wrong one.
    const QString recorder = u"192.168.7.12"_s;
    const QByteArray users = deviceOperation("GetUsers");
    for (int login = 0; login < 3; ++login) {
        const Login unknown = {Login::Kind::Digest, u"Right-2"_s, 0, "-sess"};
        QCOMPARE(ask(recorder, users, unknown, "device", 8080).status, 401);
    }
    QCOMPARE(ask(recorder, users, {Login::Kind::Digest, u"Right-2"_s}, "device", 8080).outcome(), u"200"_s);
    QStringList outcomes;
    for (const Login &login : {right, wrong})
        outcomes << ask(address, deviceOperation("GetUsers"), login).outcome();
    for (const Login &login : {wrong, right})
        outcomes << ask(address, media, login, "media2").outcome();
    QCOMPARE(outcomes,
             (QStringList{u"200"_s, u"400 NotAuthorized"_s, u"400 NotAuthorized"_s, u"400 NotAuthorized"_s}));
}

void TestSite::initialisation()
{
    const QString address = u"192.168.7.13"_s;
    const auto create = [&address](const QByteArray &level, qsizetype count = 1) {
        const QByteArray user = "<User><tt:Username>admin</tt:Username><tt:Password>First-1</tt:Password>"
                                "<tt:UserLevel>" +
                                level + "</tt:UserLevel></User>";
        return ask(address, deviceOperation("CreateUsers", user.repeated(count))).outcome();
    };
    QCOMPARE(ask(address, deviceOperation("GetUsers")).outcome(), u"200"_s);
    QCOMPARE(create("Administrator", 2), u"400 UsernameClash"_s);
    QCOMPARE(create("User"), u"400 AnonymousNotAllowed"_s);
    QCOMPARE(create("Administrator"), u"200"_s);
    QCOMPARE(create("Administrator"), u"401 NotAuthorized"_s);
    const Response users = ask(address, deviceOperation("GetUsers"), {Login::Kind::Token, u"First-1"_s});
    QCOMPARE(users.texts(u"Username"_s) + users.texts(u"UserLevel"_s),
             (QStringList{u"admin"_s, u"Administrator"_s}));
}

void TestSite::clockHasZone()
{
    const QString address = u"192.168.7.11"_s;
    const auto set = [&address](const QByteArray &zone) {
        const QByteArray time =
            "<UTCDateTime><tt:Time><tt:Hour>20</tt:Hour><tt:Minute>30</tt:Minute><tt:Second>0"
            "</tt:Second></tt:Time><tt:Date><tt:Year>2030</tt:Year><tt:Month>7</tt:Month>"
            "<tt:Day>31</tt:Day></tt:Date></UTCDateTime>";
        const QByteArray request =
            deviceOperation("SetSystemDateAndTime", "<DateTimeType>Manual</DateTimeType><DaylightSavings>true"
                                                    "</DaylightSavings><TimeZone><tt:TZ>" +
                                                        zone + "</tt:TZ></TimeZone>" + time);
        return ask(address, request, {Login::Kind::Digest, u"Right-1"_s}).outcome();
    };
    QCOMPARE(set("nowhere"), u"400 InvalidTimeZone"_s);
    QCOMPARE(set("CET-1CEST,M3.5.0,M10.5.0/3"), u"200"_s);
    const Response response = ask(address, deviceOperation("GetSystemDateAndTime"));
    // UTC, then the time of the zone, which is two hours and a day ahead.
    QCOMPARE(response.texts(u"Hour"_s) + response.texts(u"Day"_s) + response.texts(u"Month"_s),
             (QStringList{u"20"_s, u"22"_s, u"31"_s, u"31"_s, u"7"_s, u"7"_s}));
    // Tokens use the clock of the device.
    QCOMPARE(ask(address, deviceOperation("GetDeviceInformation"), rightToken).outcome(),
             u"400 NotAuthorized"_s);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QByteArray right =
        now.toString(
               u"'<UTCDateTime><tt:Time><tt:Hour>'h'</tt:Hour><tt:Minute>'m'</tt:Minute><tt:Second>'s"
               "'</tt:Second></tt:Time><tt:Date><tt:Year>'yyyy'</tt:Year><tt:Month>'M'</tt:Month><tt:Day>'d"
               "'</tt:Day></tt:Date></UTCDateTime>'"_s)
            .toLatin1();
    QCOMPARE(ask(address,
                 deviceOperation(
                     "SetSystemDateAndTime",
                     "<DateTimeType>Manual</DateTimeType><DaylightSavings>false</DaylightSavings>" + right),
                 {Login::Kind::Digest, u"Right-1"_s})
                 .outcome(),
             u"200"_s);
    QCOMPARE(ask(address, deviceOperation("GetDeviceInformation"), rightToken).outcome(), u"200"_s);
}

void TestSite::streamFollowsEncoder()
{
    const QString address = u"192.168.7.11"_s;
    QCOMPARE(describe(address, "/channel1/sub", u"Wrong"_s).status, 401);
    QVERIFY(describe(address, "/channel1/sub", u"Right-1"_s).body.contains(" H264/90000"));
    const QByteArray configuration =
        "<Configuration "
        "token=\"VideoEncoder_1_sub\"><tt:Name>sub</tt:Name><tt:UseCount>1</tt:UseCount><tt:Encoding>"
        "%1</tt:Encoding><tt:Resolution><tt:Width>352</tt:Width><tt:Height>%2</tt:Height></tt:Resolution>"
        "<tt:Quality>4</tt:Quality></Configuration>";
    const auto set = [&](const QByteArray &codec, const QByteArray &height) {
        QByteArray content = configuration;
        content.replace("%1", codec).replace("%2", height);
        return ask(address, mediaOperation("SetVideoEncoderConfiguration", content), rightToken, "media2")
            .outcome();
    };
    QCOMPARE(set("H264", "289"), u"400 ConfigModify"_s);
    QCOMPARE(set("H265", "288"), u"200"_s);
    QVERIFY(describe(address, "/channel1/sub", u"Right-1"_s).body.contains(" H265/90000"));
}

void TestSite::unconnectedChannelHasNoProfile()
{
    const Response profiles = ask(u"192.168.7.12"_s, mediaOperation("GetProfiles"),
                                  {Login::Kind::Digest, u"Right-2"_s}, "media2", 8080);
    QCOMPARE(profiles.texts(u"Name"_s), (QStringList{u"One main"_s, u"One sub"_s}));
}

void TestSite::addressChanges()
{
    const QByteArray settings =
        "<InterfaceToken>eth0</InterfaceToken><NetworkInterface><tt:IPv4><tt:Manual><tt:Address>192.168.7.41"
        "</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual><tt:DHCP>false</tt:DHCP></tt:IPv4>"
        "</NetworkInterface>";
    const Response response = ask(u"192.168.7.14"_s, deviceOperation("SetNetworkInterfaces", settings),
                                  {Login::Kind::Digest, u"Right-4"_s});
    QCOMPARE(response.outcome() + response.text(u"RebootNeeded"_s), u"200false"_s);
    const auto isThere = [] {
        return ask(u"192.168.7.41"_s, deviceOperation("GetSystemDateAndTime")).status == 200;
    };
    QVERIFY(becomes(isThere));
    QFile neighbours(u"/proc/net/arp"_s);
    QVERIFY(neighbours.open(QIODevice::ReadOnly));
    const QString table = QString::fromLatin1(neighbours.readAll());
    QVERIFY(table.contains(QRegularExpression(u"192\\.168\\.7\\.41 .*02:1a:c5:07:00:04"_s)));
}

void TestSite::firmwareIsInstalled()
{
    const QString address = u"192.168.7.11"_s;
    const auto upload = [&address](const QByteArray &file) {
        const Response begin = ask(address, deviceOperation("StartFirmwareUpgrade"), rightToken);
        const QByteArray path = QUrl(begin.text(u"UploadUri"_s)).path().toLatin1();
        return exchange(address, 80,
                        "POST " + path +
                            " HTTP/1.1\r\nHost: device\r\nConnection: close\r\nContent-Length: " +
                            QByteArray::number(file.size()) + "\r\n\r\n" + file)
            .status;
    };
    const QByteArray rest(300000, 'x');
    QCOMPARE(upload("BRELM-FIRMWARE 1\nmodel=R-4108-8P\nversion=9.0\n\n" + rest), 500);
    QCOMPARE(version(address), u"2.840.1"_s);
    QCOMPARE(upload("BRELM-FIRMWARE 1\nmodel=B-2230-IR\nversion=2.900.0\n\n" + rest), 200);
    QVERIFY(becomes([&address] { return version(address) == u"2.900.0"; }));
}

void TestSite::resetMakesFactoryNew()
{
    const QString address = u"192.168.7.13"_s;
    const Login login = {Login::Kind::Token, u"First-1"_s};
    QUdpSocket group;
    QVERIFY(group.bind(QHostAddress(QHostAddress::AnyIPv4), 3702));
    QVERIFY(group.joinMulticastGroup(QHostAddress(u"239.255.255.250"_s)));
    QCOMPARE(ask(address, deviceOperation("SetSystemFactoryDefault", "<FactoryDefault>Soft</FactoryDefault>"),
                 login)
                 .outcome(),
             u"200"_s);
    // It sends Bye, and then Hello without a login. Other devices, and this one after an earlier test, send
    // Hello as well.
    QStringList messages;
    QVERIFY(becomes([&] {
        while (group.hasPendingDatagrams() || group.waitForReadyRead(50)) {
            const QNetworkDatagram datagram = group.receiveDatagram();
            if (datagram.senderAddress() != QHostAddress(address))
                continue;
            const bool isBye = datagram.data().contains("Bye>");
            if (isBye || !messages.isEmpty())
                messages << (isBye ? u"Bye"_s : u"Hello"_s);
        }
        return messages.size() >= 2;
    }));
    QCOMPARE(messages, (QStringList{u"Bye"_s, u"Hello"_s}));
    QCOMPARE(ask(address, deviceOperation("GetUsers")).outcome(), u"200"_s);
}

} // namespace site

QTEST_GUILESS_MAIN(site::TestSite)
#include "tst_site.moc"
