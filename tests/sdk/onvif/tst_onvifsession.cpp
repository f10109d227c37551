// Logins, initialisation and address changes of devices that respond in part, not at all, or are other
// devices than expected.
#include "sdk/callstop.h"
#include "sdk/onvif/addresschange.h"
#include "sdk/onvif/deviceinitialisation.h"
#include "sdk/onvif/firmwareupload.h"
#include "sdk/onvif/livestreams.h"
#include "sdk/onvif/session/onvifsession.h"
#include "tests/cgi/rawserver.h"
#include "tests/datatable.h"
#include "tests/sdk/onvif/rtspserver.h"
#include "tests/sdk/realdatawatcher.h"

#include <QHash>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <future>

using namespace Qt::StringLiterals;
using namespace sdk::onvif;
using namespace std::chrono_literals;
using sdk::NetError;

namespace {

const char *const oldAddress = "127.0.0.1";
const char *const newAddress = "127.0.0.2";

/// The response to an operation.
enum class Manner
{
    Guarded, ///< with the login only
    Open,    ///< without a login
    Silent,
    Refused,      ///< as an invalid value
    NotPermitted, ///< as with a wrong password
};

/// Responses by the name of the operation; at the new address by "new NAME", and with a created account by
/// "after NAME". "*" stands for the others.
using Manners = QHash<QByteArray, Manner>;

QByteArray contentOf(const QByteArray &operation, bool needsReboot)
{
    const QHash<QByteArray, QByteArray> contents = {
        {"GetSystemDateAndTime", "<d:SystemDateAndTime><t:DateTimeType>Manual</"
                                 "t:DateTimeType><t:UTCDateTime><t:Time><t:Hour>1</t:Hour>"
                                 "<t:Minute>2</t:Minute><t:Second>3</t:Second></t:Time><t:Date><t:Year>2030</"
                                 "t:Year><t:Month>4</t:Month>"
                                 "<t:Day>5</t:Day></t:Date></t:UTCDateTime></d:SystemDateAndTime>"},
        {"GetDeviceInformation", "<d:Model>M</d:Model><d:SerialNumber>S1</d:SerialNumber>"},
        {"GetUsers",
         "<d:User><t:Username>admin</t:Username><t:UserLevel>Administrator</t:UserLevel></d:User>"},
        {"GetServices", "<d:Service><d:Namespace>http://www.onvif.org/ver10/media/wsdl</d:Namespace>"
                        "<d:XAddr>http://127.0.0.1:PORT/media</d:XAddr></d:Service>"},
        {"GetNetworkInterfaces",
         "<d:NetworkInterfaces token='eth0'><t:Enabled>true</t:Enabled><t:Info>"
         "<t:HwAddress>02:1a:c5:00:00:01</t:HwAddress></t:Info><t:IPv4><t:Enabled>true</t:Enabled><t:Config>"
         "<t:Manual><t:Address>127.0.0.1</t:Address><t:PrefixLength>8</t:PrefixLength></t:Manual>"
         "<t:DHCP>false</t:DHCP></t:Config></t:IPv4></d:NetworkInterfaces>"},
        {"GetNetworkDefaultGateway",
         "<d:NetworkGateway><t:IPv4Address>127.0.0.9</t:IPv4Address></d:NetworkGateway>"},
        {"SetNetworkInterfaces",
         needsReboot ? "<d:RebootNeeded>true</d:RebootNeeded>" : "<d:RebootNeeded>false</d:RebootNeeded>"},
    };
    return contents.value(operation);
}

class ScriptedDevice
{
public:
    explicit ScriptedDevice(Manners manners, bool needsReboot = false)
        : m_manners(std::move(manners)), m_needsReboot(needsReboot)
    {
    }

    [[nodiscard]] ServiceAddress service() const
    {
        ServiceAddress address;
        address.host = oldAddress;
        address.port = m_server.address().section(u':', 1).toInt();
        return address;
    }

    /// The number of requests with both texts.
    [[nodiscard]] qsizetype requestsWith(const QByteArray &text, const QByteArray &other = {}) const
    {
        const QList<QByteArray> requests = m_server.requests();
        return std::count_if(requests.begin(), requests.end(), [&](const QByteArray &request) {
            return request.contains(text) && request.contains(other);
        });
    }

private:
    [[nodiscard]] Manner mannerOf(const QByteArray &request, const QByteArray &operation) const
    {
        const Manner other = m_manners.value("*", Manner::Guarded);
        const Manner here = m_manners.value(operation, other);
        if (requestsWith("CreateUsers") > 0)
            return m_manners.value("after " + operation, here);
        if (!request.contains(QByteArray("Host: ") + newAddress))
            return here;
        return m_manners.value("new " + operation, m_manners.value("new *", here));
    }

    void respond(const RawExchange &exchange) const
    {
        const QByteArray request = exchange.request();
        static const QRegularExpression element(u"<(tds|trt|tr2):(\\w+)"_s);
        const QRegularExpressionMatch match = element.match(QString::fromLatin1(request));
        const QByteArray operation = match.captured(2).toLatin1();
        const bool isGuarded = operation != "GetSystemDateAndTime";
        Manner manner = mannerOf(request, operation);
        if (manner == Manner::Guarded)
            manner = !isGuarded || request.contains("UsernameToken") ? Manner::Open : Manner::NotPermitted;
        const QByteArray serviceName = match.captured(1) == u"tds"_s ? "device" : "media";
        const QByteArray fault = "<x:Fault><x:Code><x:Value>x:Sender</x:Value><x:Subcode><x:Value>ter:%1"
                                 "</x:Value></x:Subcode></x:Code></x:Fault>";
        switch (manner) {
        case Manner::Silent:
            (void)exchange.pause(20000);
            break;
        case Manner::Refused:
            send(exchange, "400 Bad Request", QByteArray(fault).replace("%1", "InvalidArgVal"));
            break;
        case Manner::NotPermitted:
            send(exchange, "400 Bad Request", QByteArray(fault).replace("%1", "NotAuthorized"));
            break;
        default:
            send(exchange, "200 OK",
                 "<d:" + operation + "Response xmlns:d='http://www.onvif.org/ver10/" + serviceName +
                     "/wsdl' xmlns:t='http://www.onvif.org/ver10/schema'>" +
                     contentOf(operation, m_needsReboot).replace("PORT", QByteArray::number(service().port)) +
                     "</d:" + operation + "Response>");
        }
    }

    static void send(const RawExchange &exchange, const QByteArray &status, const QByteArray &body)
    {
        exchange.respond(status, {},
                         "<x:Envelope xmlns:x='http://www.w3.org/2003/05/soap-envelope'><x:Body>" + body +
                             "</x:Body></x:Envelope>");
    }

    const Manners m_manners;
    const bool m_needsReboot;
    const RawServer m_server{[this](const RawExchange &exchange) { respond(exchange); },
                             RawServer::Reach::EveryAddress}; // last
};

const HttpLogin login = {.account = "admin", .password = "secret1"};

quint32 code(NetError error)
{
    return static_cast<quint32>(error);
}

} // namespace

class OnvifSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLoginIsConfirmed_data()
    {
        const auto row = dataTable<Manners, quint32>({"manners", "error"});
        using enum Manner;
        row("usual", Manners{}, 0);
        row("services do not respond", Manners{{"GetServices", Silent}}, code(NetError::ConnectTimeout));
        row("profiles do not respond", Manners{{"GetProfiles", Silent}}, code(NetError::ConnectTimeout));
        row("no media service", Manners{{"GetProfiles", Refused}}, 0);
        row("everything open", Manners{{"*", Open}}, code(NetError::NotSupported));
        const Manners partly = {{"GetDeviceInformation", Open}, {"GetUsers", Open}};
        row("information and users open", partly, 0);
        Manners wrong = partly;
        wrong.insert("*", NotPermitted);
        row("information and users open, wrong password", wrong, code(NetError::WrongPassword));
        row("all but users open", Manners{{"*", Open}, {"GetUsers", NotPermitted}},
            code(NetError::WrongPassword));
    }

    void aLoginIsConfirmed()
    {
        QFETCH(const Manners, manners);
        QFETCH(const quint32, error);
        const ScriptedDevice device(manners);
        NetError result = NetError::None;
        const auto session = OnvifSession::open(device.service(), login, std::make_shared<HttpClient>(),
                                                std::chrono::steady_clock::now() + 2s, result);
        QCOMPARE(code(result), error);
        QCOMPARE(session != nullptr, error == 0);
    }

    void anInitialisationIsConfirmed_data()
    {
        const auto row = dataTable<Manners, QByteArray, quint32, int>({"manners", "mac", "error", "sent"});
        using enum Manner;
        const QByteArray own = "02:1a:c5:00:00:01";
        row("open for ever", Manners{{"*", Open}}, own, code(NetError::Refused), 1);
        row("guarded", Manners{{"*", Open}, {"after GetUsers", NotPermitted}}, own, 0, 1);
        row("silent after it", Manners{{"*", Open}, {"after GetUsers", Silent}}, own,
            code(NetError::Unconfirmed), 1);
        row("odd after it", Manners{{"*", Open}, {"after GetUsers", Refused}}, own,
            code(NetError::Unconfirmed), 1);
        row("another device", Manners{{"*", Open}}, "02:1a:c5:00:00:02", code(NetError::AddressInUse), 0);
        row("has an administrator", Manners{}, own, code(NetError::NotSupported), 0);
    }

    void anInitialisationIsConfirmed()
    {
        QFETCH(const Manners, manners);
        QFETCH(const QByteArray, mac);
        QFETCH(const quint32, error);
        QFETCH(const int, sent);
        const ScriptedDevice device(manners);
        const auto deadline = std::chrono::steady_clock::now() + 2s;
        const NetError result =
            initialiseDevice(device.service(), std::make_shared<HttpClient>(),
                             {.account = "root", .password = "secret1"}, mac.toStdString(), deadline);
        QCOMPARE(code(result), error);
        QCOMPARE(device.requestsWith("secret1"), sent);
    }

    void anAddressIsConfirmed_data()
    {
        const auto row =
            dataTable<Manners, bool, quint32, int>({"manners", "needsReboot", "error", "gateways"});
        using enum Manner;
        row("confirmed", Manners{}, false, 0, 1);
        row("confirmed after a reboot", Manners{}, true, 0, 1);
        row("silent", Manners{{"new *", Silent}}, false, code(NetError::Unconfirmed), 1);
        row("silent after a reboot", Manners{{"new *", Silent}}, true, code(NetError::Unconfirmed), 1);
        row("another device", Manners{{"new *", NotPermitted}, {"new GetSystemDateAndTime", Open}}, false,
            code(NetError::AddressInUse), 1);
        row("another device after a reboot",
            Manners{{"new *", NotPermitted}, {"new GetSystemDateAndTime", Open}}, true,
            code(NetError::AddressInUse), 1);
        row("address refused", Manners{{"SetNetworkInterfaces", Refused}}, false,
            code(NetError::InvalidValue), 2); // the old one again
        row("gateway refused", Manners{{"SetNetworkDefaultGateway", Refused}}, true,
            code(NetError::InvalidValue), 2);
        row("gateway refused by the old address",
            Manners{{"SetNetworkDefaultGateway", Refused}, {"new SetNetworkDefaultGateway", Guarded}}, true,
            0, 2);
    }

    void anAddressIsConfirmed()
    {
        QFETCH(const Manners, manners);
        QFETCH(const bool, needsReboot);
        QFETCH(const quint32, error);
        QFETCH(const int, gateways);
        const ScriptedDevice device(manners, needsReboot);
        const AddressOrder order = {.address = newAddress,
                                    .mask = "255.0.0.0",
                                    .gateway = "127.0.0.10",
                                    .mac = "02:1a:c5:00:00:01",
                                    .settlingTime = 1000ms,
                                    .rebootTime = 2000ms};
        const NetError result = changeAddress(device.service(), std::make_shared<HttpClient>(), login, order,
                                              std::chrono::steady_clock::now() + 1s);
        QCOMPARE(code(result), error);
        QCOMPARE(device.requestsWith("SetNetworkDefaultGateway"), gateways);
        QCOMPARE(device.requestsWith("SetNetworkDefaultGateway", "127.0.0.9"),
                 error == code(NetError::InvalidValue) && !needsReboot ? 1 : 0);
        QCOMPARE(device.requestsWith("SystemReboot"), needsReboot ? 1 : 0);
        // Another device gets no further request.
        if (error == code(NetError::AddressInUse))
            QCOMPARE(device.requestsWith(QByteArray("Host: ") + newAddress, "UsernameToken"), 1);
    }

    /// The user has stopped the change while the device does not respond: nothing has been changed.
    void aStopEndsTheRequestsBeforeAnAddressChange_data()
    {
        const auto row = dataTable<QByteArray>({"silent"});
        row("during the login", "GetDeviceInformation");
        row("during the query of the interfaces", "GetNetworkInterfaces");
    }

    void aStopEndsTheRequestsBeforeAnAddressChange()
    {
        QFETCH(const QByteArray, silent);
        const ScriptedDevice device(Manners{{silent, Manner::Silent}});
        const AddressOrder order = {.address = newAddress, .mask = "255.0.0.0", .gateway = "127.0.0.10"};
        std::stop_source stop;
        auto result = std::async(std::launch::async, [&] {
            const sdk::CallStop callStop(stop.get_token());
            return changeAddress(device.service(), std::make_shared<HttpClient>(), login, order,
                                 std::chrono::steady_clock::now() + 30s);
        });
        QTRY_VERIFY(device.requestsWith(silent) > 0);
        stop.request_stop();
        QCOMPARE(result.wait_for(5s), std::future_status::ready);
        QCOMPARE(code(result.get()), code(NetError::Cancelled));
        QCOMPARE(device.requestsWith("<tds:Set"), 0);
    }

    /// A device may take a minute to restart: a stop does not wait for it.
    void theWaitForADeviceAtItsNewAddressEnds_data()
    {
        const auto row = dataTable<bool>({"isLate"});
        row("stopped", false);
        row("its time is over", true);
    }

    void theWaitForADeviceAtItsNewAddressEnds()
    {
        QFETCH(const bool, isLate);
        const ScriptedDevice device(Manners{{"new *", Manner::Silent}}, false);
        const AddressOrder order = {.address = newAddress,
                                    .mask = "255.0.0.0",
                                    .gateway = "127.0.0.10",
                                    .mac = "02:1a:c5:00:00:01",
                                    .settlingTime = 60s,
                                    .rebootTime = 60s};
        std::stop_source stop;
        std::atomic_bool isOver = false;
        auto result = std::async(std::launch::async, [&] {
            const sdk::CallStop callStop(stop.get_token(), [&] { return isOver.load(); });
            return changeAddress(device.service(), std::make_shared<HttpClient>(), login, order,
                                 std::chrono::steady_clock::now() + 5s);
        });
        QTRY_COMPARE(device.requestsWith("SetNetworkInterfaces"), 1);
        QTRY_VERIFY(device.requestsWith(QByteArray("Host: ") + newAddress) > 0); // it waits
        if (isLate)
            isOver = true;
        else
            stop.request_stop();
        QCOMPARE(result.wait_for(5s), std::future_status::ready);
        QCOMPARE(code(result.get()), code(NetError::Unconfirmed));
        QCOMPARE(device.requestsWith("SetNetworkDefaultGateway"), 1);
    }

    void theHighestOfManyFrameRatesIsRead()
    {
        constexpr int highest = 120;
        QByteArray rates;
        for (int rate = 1; rate <= highest; ++rate)
            rates += QByteArray::number(rate) + ' ';
        const QByteArray response =
            "<x:Envelope xmlns:x='http://www.w3.org/2003/05/soap-envelope'><x:Body>"
            "<m:GetVideoEncoderConfigurationOptionsResponse xmlns:m='http://www.onvif.org/ver20/media/wsdl'>"
            "<m:Options FrameRatesSupported='" +
            rates + "'/></m:GetVideoEncoderConfigurationOptionsResponse></x:Body></x:Envelope>";
        const RawServer device(
            [&response](const RawExchange &exchange) { exchange.respond("200 OK", {}, response); });
        ServiceAddress address;
        address.host = oldAddress;
        address.port = device.address().section(u':', 1).toInt();
        SoapClient client({.account = "admin", .password = "secret1"}, std::make_shared<HttpClient>());
        MediaService media(client, address, MediaVersion::Second, std::chrono::steady_clock::now() + 5s);
        const auto options = media.videoOptions("encoder", "profile");
        QVERIFY(options.isOk() && options.value.size() == 1);
        QCOMPARE(options.value.front().maximumFrameRate, double(highest));
    }

    /// The device requests the login only when it has the complete file.
    void aFileThatIsSentAgainIsReportedAgain()
    {
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(QByteArray(200'000, 'x')) > 0 && file.flush());
        const RawServer device([](const RawExchange &exchange) {
            if (exchange.request().contains("Authorization: Digest"))
                exchange.respond("200 OK", {}, {});
            else
                exchange.respond("401 Unauthorized",
                                 "WWW-Authenticate: Digest realm=\"r\", nonce=\"n\", qop=\"auth\"\r\n", {});
        });
        FirmwareUpload upload;
        upload.address.host = oldAddress;
        upload.address.port = device.address().section(u':', 1).toInt();
        struct Progress
        {
            std::mutex mutex;
            QList<QList<int>> phases; // each with its first percentage
        } progress;
        const auto take = [](std::int64_t, const sdk::UpgradeProgress *report, void *user) {
            auto *seen = static_cast<Progress *>(user);
            const std::scoped_lock lock(seen->mutex);
            const int phase = static_cast<int>(report->phase);
            if (seen->phases.isEmpty() || seen->phases.last().first() != phase)
                seen->phases.append({phase, report->percent});
        };
        FirmwareUploads uploads(nullptr);
        const std::int64_t handle =
            uploads.open(1, upload, {.account = "admin", .password = "secret1"},
                         file.fileName().toLocal8Bit().toStdString(), take, &progress, [] {});
        QVERIFY(handle > 0);
        const auto hasEnded = [&progress] {
            const std::scoped_lock lock(progress.mutex);
            return !progress.phases.isEmpty() && progress.phases.last().first() > 2; // Done or Failed
        };
        QTRY_VERIFY(hasEnded());
        QCOMPARE(progress.phases, (QList<QList<int>>{{1, 0}, {2, 0}, {1, 0}, {2, 0}, {3, 100}}));
        QCOMPARE(uploads.close(handle), NetError::None);
    }

    void anEndBeforeTheFirstHandlerIsReported()
    {
        RtspScript script;
        script.description = "v=0\r\nm=video 0 RTP/AVP 96\r\na=rtpmap:96 H264/90000\r\na=control:0\r\n";
        script.account = "admin";
        script.password = "secret1";
        script.sessionTimeout = 2;
        script.responses["GET_PARAMETER"] = "RTSP/1.0 401 Unauthorized\r\nCSeq: CSEQ\r\n\r\n";
        // Slices of frames that depend on an earlier one, in two packets.
        for (const char *const packet :
             {"80e0000100000e1000000007419a0010", "80e0000200001c2000000007419a0020"})
            script.endless += framed({0, QByteArray::fromHex(packet)});
        script.endlessPause = std::chrono::milliseconds{20};
        const RtspServer server(script);
        RtspOrder order = {.url = server.url(), .account = "admin", .password = "secret1", .timeouts = {}};
        std::atomic_bool isRefused = false;
        LiveStreams streams;
        NetError error = NetError::None;
        const std::int64_t handle = streams.open(
            1, "profile", order, [&isRefused] { isRefused = true; }, error);
        QVERIFY(handle > 0);
        QTRY_VERIFY_WITH_TIMEOUT(isRefused, 10000); // by the keep-alive request
        RealDataWatcher watcher;
        QTRY_VERIFY((streams.stream(handle)->setHandler(&RealDataWatcher::take, &watcher),
                     !watcher.ends().isEmpty()));
        QCOMPARE(watcher.ends(), QList{static_cast<int>(sdk::StreamEndReason::Refused)});
        QVERIFY(streams.close(handle));
    }
};

QTEST_GUILESS_MAIN(OnvifSessionTest)
#include "tst_onvifsession.moc"
