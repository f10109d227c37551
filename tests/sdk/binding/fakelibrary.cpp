// A library that implements every interface. Each function records its call; a few do more.
#include "sdk/binding/entrypoints.h"

#include <algorithm>
#include <string>

namespace {

std::string &noted()
{
    static std::string names;
    return names;
}

void note(const char *name)
{
    noted().append(name).append(" ");
}

} // namespace

extern "C" {

// NOLINTBEGIN(bugprone-macro-parentheses): types have none
#define FAKE_ENTRY(result, name, parameters)                                                                 \
    result fake##name parameters                                                                             \
    {                                                                                                        \
        note(#name);                                                                                         \
        return result();                                                                                     \
    }
SDK_NETWORK_ENTRY_POINTS(FAKE_ENTRY)
SDK_CONFIGURATION_ENTRY_POINTS(FAKE_ENTRY)
SDK_DECODER_ENTRY_POINTS(FAKE_ENTRY)
SDK_AGENT_ENTRY_POINTS(FAKE_ENTRY)
// NOLINTEND(bugprone-macro-parentheses)

/// The names since the last call, each followed by a space.
const char *takeNames()
{
    static std::string taken;
    taken.clear();
    taken.swap(noted());
    return taken.c_str();
}

std::int64_t echoLogin(const sdk::LoginSecureInput *input, sdk::LoginSecureOutput *output)
{
    std::copy_n(input->address.begin(), output->device.serialNumber.size(),
                output->device.serialNumber.begin());
    output->error = static_cast<std::uint32_t>(sdk::NetError::None);
    return (std::int64_t(1) << 40) + input->port;
}

std::int32_t echoWait(std::int64_t, std::int32_t wait)
{
    return wait;
}

std::int32_t echoText(const char *name, const char *text, std::uint32_t textSize, void *record,
                      std::uint32_t recordSize, std::uint32_t *returnedSize)
{
    const std::string whole = std::string(name) + "=" + std::string(text, textSize);
    *returnedSize = std::min(recordSize, static_cast<std::uint32_t>(whole.size()));
    std::copy_n(whole.begin(), *returnedSize, static_cast<char *>(record));
    return 1;
}

std::int32_t thirdPort(std::int32_t *port)
{
    *port = 3;
    return 1;
}

std::int32_t nextPort(const char *, std::int32_t devicePort, std::int32_t *localPort, std::int32_t)
{
    *localPort = devicePort + 1;
    return 1;
}

} // extern "C"
