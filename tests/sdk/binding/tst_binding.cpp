// Closed libraries that are loaded at run time.
#include "sdk/binding/boundlibraries.h"
#include "sdk/binding/dynamiclibrary.h"
#include "sdk/blocktext.h"
#include "sdk/configlibrary.h"
#include "sdk/searchreportblocks.h"
#include "tests/datatable.h"
#include "tests/sdk/binding/bindingtext.h"

#include <QTemporaryDir>

#include <array>

using namespace sdk;
using namespace sdk::binding;
using namespace std::chrono_literals;
using namespace std::string_literals;

namespace {

using Kind = BindingProblem::Kind;

std::string noting(const std::string &function)
{
    return "fake" + function;
}

std::string lively(const std::string &function)
{
    const auto found = livelyEntries().find(function);
    return found == livelyEntries().end() ? noting(function) : found->second;
}

void callAll(NetLibrary &net)
{
    std::uint32_t size = 0;
    std::int32_t number = 0;
    ProviderInformation provider{};
    SearchByAddressesRequest addresses{};
    SearchReport report{};
    LoginDeviceInformation device{};
    LoginSecureOutput login{};
    DeviceRequestOutput request{};
    ResetSystemOutput reset{};
    ChannelStates states{};
    net.NetInit();
    net.NetCleanup();
    (void)net.NetGetLastError();
    net.NetGetProviderInformation(provider);
    net.NetSetCertificateHandler(nullptr, nullptr);
    net.NetStartSearchDevices({}, 1ms);
    net.NetStartSearchDevicesEx({}, 1ms);
    net.NetSearchDevicesByIPs(addresses, nullptr, nullptr, "", 1ms);
    net.NetSearchDevicesByIPsEx(addresses, nullptr, nullptr, "", 1ms);
    net.NetStopSearchDevices(1);
    net.NetSearchDeviceByIp(addresses, nullptr, nullptr, 1ms);
    net.NetGetSearchReport(report);
    net.NetLogin("", 1, "", "", 0, nullptr, device, number);
    net.NetLoginSecure({}, login);
    net.NetLogout(1);
    net.NetCancelCalls(1);
    net.NetIsDeviceAlive(1, 1ms);
    net.NetQueryConfig(1, QueryCommand::Time, 0, nullptr, 0, size, 1ms);
    net.NetGetNewConfig(1, "", 0, nullptr, 0, number, 1ms);
    net.NetQueryCapabilities(1, CapabilityQuery::Camera, nullptr, nullptr, 1ms);
    net.NetGetItem(1, 1, 0, nullptr, 0, 1ms);
    net.NetInitDeviceAccount({}, request, 1ms, "");
    net.NetModifyDeviceBySearch({}, request, 1ms);
    net.NetSetDeviceSetting(1, DeviceSetting::Time, 0, nullptr, 0, 1ms);
    net.NetSetItem(1, 1, 0, nullptr, 0, 1ms);
    net.NetSetNewConfig(1, "", 0, "", 0, number, 1ms);
    net.NetRebootDevice(1, 1ms);
    net.NetResetSystem(1, {}, reset, 1ms);
    net.NetModifyPassword(1, {}, 1ms);
    net.NetStartRealStream(1, 0, 0, LiveStreamKind::Main);
    net.NetSetRealDataCallback(1, nullptr, nullptr, 1);
    net.NetStreamFollowUp(1, 0, 0);
    net.NetStopRealStream(1);
    net.NetQueryChannelStates(1, states, 1ms);
    net.NetStartUpgrade(1, "", nullptr, nullptr, 1ms);
    net.NetStopUpgrade(1);
}

void callAll(ConfigLibrary &config, DecoderLibrary &decoder, P2PAgentLibrary &agent)
{
    std::uint32_t size = 0;
    std::int32_t number = 0;
    DecoderStatus status{};
    config.ConfigParseData("", "", nullptr, 0, size);
    config.ConfigPackData("", nullptr, 0, nullptr, 0);
    decoder.DecoderAllocPort(number);
    decoder.DecoderSetStreamMode(1, 0);
    decoder.DecoderOpenStream(1, nullptr, 0, 1);
    decoder.DecoderSetDecodeCallback(1, nullptr, nullptr);
    decoder.DecoderPlay(1, 0);
    decoder.DecoderInputData(1, nullptr, 0);
    decoder.DecoderStop(1);
    decoder.DecoderCloseStream(1);
    decoder.DecoderFreePort(1);
    decoder.DecoderGetStatus(1, status);
    decoder.DecoderSaveFrame(nullptr, 1, 1, SavedImageType::Jpeg, 1, "", FrameColour::Bt601Full);
    agent.OAgent_ClientInit({});
    agent.OAgent_SetMessageCallback(nullptr, nullptr);
    agent.OAgent_ClientGetDeviceLocalPort("", 1, nullptr, 0, number);
    agent.OAgent_ClientAddPort("", 1, number, 0);
    agent.OAgent_ClientDelPort(1);
    agent.OAgent_ClientRelease();
}

} // namespace

class BindingTest : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;

    [[nodiscard]] std::string bindingFile() const { return m_folder.filePath("binding.txt").toStdString(); }

    /// The libraries of a binding file of that text; the reason of a failure is shown.
    [[nodiscard]] SdkLibraries bound(const std::string &text) const
    {
        writeText(bindingFile(), text);
        auto result = bindLibraries(bindingFile());
        if (const auto *problem = std::get_if<BindingProblem>(&result)) {
            qWarning() << problem->file.c_str() << problem->name.c_str();
            return {};
        }
        return std::get<SdkLibraries>(result);
    }

private Q_SLOTS:
    void eachOperationCallsItsFunction()
    {
        const SdkLibraries libraries = bound(bindingText(FAKE_LIBRARY, noting));
        QVERIFY(libraries.net && libraries.config && libraries.decoder && libraries.p2pAgent);
        DynamicLibrary library;
        QCOMPARE(library.open(FAKE_LIBRARY), std::string());
        using TakeNames = const char *(*)();
        const auto takeNames = reinterpret_cast<TakeNames>(library.entry("takeNames"));
        QVERIFY(takeNames);
        QCOMPARE(takeNames(), ""); // nothing was called before everything was there
        callAll(*libraries.net);
        callAll(*libraries.config, *libraries.decoder, *libraries.p2pAgent);
        std::string expected;
        const auto add = [&expected](const std::vector<EntryPoint> &functions) {
            for (const EntryPoint &function : functions)
                expected += function.name + " "s;
        };
        add(NetworkEntryPoints().all());
        add(ConfigurationEntryPoints().all());
        add(DecoderEntryPoints().all());
        add(AgentEntryPoints().all());
        QCOMPARE(takeNames(), expected.c_str());
    }

    void argumentsAndResultsArePassed()
    {
        const SdkLibraries libraries = bound(bindingText(FAKE_LIBRARY, lively));
        QVERIFY(libraries.net);
        LoginSecureInput input{};
        input.port = 80;
        setBlockText(input.address, "192.168.1.9");
        LoginSecureOutput output{};
        output.error = 5;
        QCOMPARE(libraries.net->NetLoginSecure(input, output), (LLONG(1) << 40) + 80);
        QVERIFY(blockText(output.device.serialNumber) == "192.168.1.9" && output.error == 0);
        QVERIFY(libraries.net->NetIsDeviceAlive(1, 1h));
        QVERIFY(!libraries.net->NetIsDeviceAlive(1, -1ms));
        std::array<char, 32> record{};
        std::uint32_t filled = 0;
        QVERIFY(libraries.config->ConfigParseData("name", std::string_view("text and more", 4), record.data(),
                                                  record.size(), filled));
        QVERIFY(blockText(record) == "name=text" && filled == 9);
        std::int32_t port = 0;
        QVERIFY(libraries.decoder->DecoderAllocPort(port) && port == 3);
        QVERIFY(libraries.p2pAgent->OAgent_ClientAddPort("id", 37, port, 0) && port == 38);
    }

    void reportsWhatIsMissing_data()
    {
        const auto row = dataTable<std::string, std::string, int, QString>({"from", "to", "kind", "name"});
        row("no entry", "= fakeNetLogout", "= absent", static_cast<int>(Kind::EntryMissing), "absent");
        row("ordinal on a system without ordinals", "= fakeNetLogout", "= 12",
            static_cast<int>(Kind::EntryMissing), "12");
        row("no library", FAKE_LIBRARY, "absent.so", static_cast<int>(Kind::LibraryUnusable), "absent.so");
        row("one function too few", "NetStopUpgrade = fakeNetStopUpgrade\n", "",
            static_cast<int>(Kind::FunctionMissing), "NetStopUpgrade");
        row("one too many",
            "NetInit =", "NetInitialise = x\nNetInit =", static_cast<int>(Kind::FunctionUnknown),
            "NetInitialise");
        row("no section", "[agent]", "[agents]", static_cast<int>(Kind::SectionMissing), "agent");
        row("section without its file", "[decoder]\nfile", "[decoder]\n# file",
            static_cast<int>(Kind::SectionMissing), "decoder");
        row("invalid line", "NetInit = fakeNetInit", "NetInit", static_cast<int>(Kind::LineUnusable),
            "NetInit");
        row("line before a section", "[network]\n", "", static_cast<int>(Kind::LineUnusable), "file");
    }

    void reportsWhatIsMissing()
    {
        QFETCH(const std::string, from);
        QFETCH(const std::string, to);
        QFETCH(const int, kind);
        QFETCH(const QString, name);
        std::string text = bindingText(FAKE_LIBRARY, noting);
        const std::size_t index = text.find(from);
        QVERIFY(index != std::string::npos);
        text.replace(index, from.size(), to);
        writeText(bindingFile(), text);
        const auto result = bindLibraries(bindingFile());
        const auto *problem = std::get_if<BindingProblem>(&result);
        QVERIFY(problem);
        QCOMPARE(static_cast<int>(problem->kind), kind);
        const QString words = QString::fromStdString(problem->file + " " + problem->name);
        QVERIFY2(words.contains(name), qPrintable(words));
    }

    void withoutAFileNothingIsBound()
    {
        const auto result = bindLibraries(m_folder.filePath("absent").toStdString());
        const auto *problem = std::get_if<BindingProblem>(&result);
        QVERIFY(problem && problem->kind == Kind::FileUnreadable);
    }
};

QTEST_GUILESS_MAIN(BindingTest)
#include "tst_binding.moc"
