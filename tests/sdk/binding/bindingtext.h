// Binding files, which list the functions of closed libraries, for the test library of fakelibrary.cpp.
#pragma once

#include "sdk/binding/entrypoints.h"

#include <fstream>
#include <functional>
#include <map>
#include <string>

/// The names of the entries of the test library that do more than record their call, by the functions that
/// they implement.
inline const std::map<std::string, std::string> &livelyEntries()
{
    static const std::map<std::string, std::string> entries = {{"NetLoginSecure", "echoLogin"},
                                                               {"NetIsDeviceAlive", "echoWait"},
                                                               {"ConfigParseData", "echoText"},
                                                               {"DecoderAllocPort", "thirdPort"},
                                                               {"OAgent_ClientAddPort", "nextPort"}};
    return entries;
}

/// The text of a binding file whose four sections list all functions in one library, the file `library`.
/// `entryOf` returns the name or the ordinal of the entry of a function.
inline std::string bindingText(const std::string &library,
                               const std::function<std::string(const std::string &function)> &entryOf)
{
    using namespace sdk::binding;
    std::string text = "# every role in one library\n";
    const auto add = [&](const char *section, const std::vector<EntryPoint> &functions) {
        text += "\n[" + std::string(section) + "]\nfile = " + library + "\n";
        for (const EntryPoint &function : functions)
            text += std::string(function.name) + " = " + entryOf(function.name) + "\n";
    };
    add("network", NetworkEntryPoints().all());
    add("configuration", ConfigurationEntryPoints().all());
    add("decoder", DecoderEntryPoints().all());
    add("agent", AgentEntryPoints().all());
    return text;
}

/// Writes a text file. Errors are ignored.
inline void writeText(const std::string &fileName, const std::string &text)
{
    std::ofstream(fileName, std::ios::binary) << text;
}
