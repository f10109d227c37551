// Binds a library by ordinals and calls one function of each interface. In plain C++, for systems that have
// ordinals: scripts/binding-windows builds and runs it.
//
//   ordinalcase --files LIBRARY   writes LIBRARY.def, which gives each entry an ordinal, and
//   devicelibraries.txt ordinalcase FILE              binds the libraries of that file
#include "sdk/binding/boundlibraries.h"
#include "sdk/blocktext.h"
#include "sdk/configlibrary.h"
#include "tests/sdk/binding/bindingtext.h"

#include <array>
#include <chrono>
#include <iostream>

using namespace std::chrono_literals;

namespace {

int writeFiles(const std::string &library)
{
    std::string definitions = "EXPORTS\n";
    int ordinal = 100;
    const std::string binding = bindingText(library + ".dll", [&](const std::string &function) {
        const auto found = livelyEntries().find(function);
        definitions += (found == livelyEntries().end() ? "fake" + function : found->second) + " @" +
                       std::to_string(++ordinal) + " NONAME\n";
        return std::to_string(ordinal);
    });
    writeText(library + ".def", definitions);
    writeText("devicelibraries.txt", binding);
    return 0;
}

/// The name of the first failed check; empty on success.
std::string fault(const sdk::SdkLibraries &libraries)
{
    sdk::LoginSecureInput input{};
    input.port = 80;
    sdk::setBlockText(input.address, "192.168.1.9");
    sdk::LoginSecureOutput output{};
    if (libraries.net->NetLoginSecure(input, output) != (sdk::LLONG(1) << 40) + 80 ||
        sdk::blockText(output.device.serialNumber) != "192.168.1.9")
        return "login";
    if (!libraries.net->NetIsDeviceAlive(1, 1ms) || libraries.net->NetIsDeviceAlive(1, 0ms))
        return "wait";
    std::array<char, 32> record{};
    std::uint32_t filled = 0;
    if (!libraries.config->ConfigParseData("name", "text", record.data(), record.size(), filled) ||
        sdk::blockText(record) != "name=text")
        return "configuration";
    std::int32_t port = 0;
    if (!libraries.decoder->DecoderAllocPort(port) || port != 3)
        return "decoder";
    if (!libraries.p2pAgent->OAgent_ClientAddPort("id", 37, port, 0) || port != 38)
        return "agent";
    return {};
}

} // namespace

int main(int count, char **arguments)
{
    const std::string first = count > 1 ? arguments[1] : "";
    if (first == "--files" && count > 2)
        return writeFiles(arguments[2]);
    const auto result = sdk::binding::bindLibraries(first);
    if (const auto *problem = std::get_if<sdk::binding::BindingProblem>(&result)) {
        std::cerr << "not bound: " << problem->file << ' ' << problem->name << '\n';
        return 1;
    }
    const std::string wrong = fault(std::get<sdk::SdkLibraries>(result));
    std::cout << (wrong.empty() ? "bound by ordinals" : "wrong: " + wrong) << '\n';
    return wrong.empty() ? 0 : 1;
}
