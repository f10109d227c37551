// Fails if a file includes a header of a folder that its own folder must not depend on, or if files include
// each other. The link graph does not cover headers that need no linking.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

struct Folder
{
    std::string_view name;
    std::vector<std::string_view> mayInclude; ///< in addition to itself and its internal/
};

/// The dependencies of docs/architecture.md. "*" stands for every folder.
const std::vector<Folder> &folders()
{
    static const std::vector<Folder> table = {
        {"sdk", {}},
        {"sdk/certificates", {"sdk"}},
        {"sdk/configtext", {"sdk"}},
        {"sdk/streams", {}},
        {"sdk/demo",
         {"sdk", "sdk/configtext", "sdk/demo/device", "sdk/demo/http", "sdk/demo/scene", "sdk/demo/search",
          "sdk/demo/site", "sdk/demo/streams", "sdk/demo/upgrade"}},
        {"sdk/demo/scene", {"sdk"}},
        {"sdk/demo/device", {"sdk", "sdk/configtext", "sdk/demo/scene"}},
        {"sdk/demo/site", {"sdk", "sdk/demo/device", "sdk/demo/scene"}},
        {"sdk/demo/search", {"sdk", "sdk/demo/device", "sdk/demo/scene", "sdk/demo/site"}},
        {"sdk/demo/streams", {"sdk", "sdk/demo/device", "sdk/demo/scene", "sdk/demo/site", "sdk/streams"}},
        {"sdk/demo/upgrade", {"sdk", "sdk/demo/device", "sdk/demo/scene", "sdk/demo/site"}},
        {"sdk/demo/http",
         {"sdk", "sdk/configtext", "sdk/demo/device", "sdk/demo/scene", "sdk/demo/site", "sdk/demo/streams"}},
        {"sdk/ffmpeg", {"sdk", "sdk/streams"}},
        {"sdk/binding", {"sdk"}},
        {"sdk/onvif",
         {"sdk", "sdk/certificates", "sdk/onvif/discovery", "sdk/onvif/live", "sdk/onvif/mapping",
          "sdk/onvif/services", "sdk/onvif/session", "sdk/onvif/soap"}},
        {"sdk/onvif/soap", {"sdk", "sdk/certificates"}},
        {"sdk/onvif/services", {"sdk", "sdk/onvif/soap"}},
        {"sdk/onvif/discovery", {"sdk", "sdk/onvif/services", "sdk/onvif/soap"}},
        {"sdk/onvif/session", {"sdk", "sdk/onvif/services", "sdk/onvif/soap"}},
        {"sdk/onvif/mapping",
         {"sdk", "sdk/configtext", "sdk/onvif/discovery", "sdk/onvif/services", "sdk/onvif/session",
          "sdk/onvif/soap"}},
        {"sdk/onvif/live", {"sdk/streams"}},
        {"files", {}},
        {"device/store", {"files", "sdk"}},
        {"device/registry", {"device/store", "files", "sdk"}},
        {"device/accounts", {"device/store", "files", "sdk"}},
        {"device/search", {"device/store", "sdk"}},
        {"device/sites", {"device/store", "files", "sdk"}},
        {"device/work", {"device/registry"}},
        {"device/models",
         {"device/accounts", "device/registry", "device/sites", "device/store", "favourites", "files"}},
        {"device/forms", {"device/models", "device/registry", "device/store", "sdk"}},
        {"media", {"device/registry", "sdk"}},
        {"sheets", {"files"}},
        {"secrets", {}},
        {"favourites", {"files", "secrets"}},
        {"device/batch",
         {"device/accounts", "device/models", "device/registry", "device/store", "files", "sdk", "sheets"}},
        {"device/dh/session", {"device/registry", "device/store", "sdk"}},
        {"device/dh/logins",
         {"device/accounts", "device/dh/session", "device/registry", "device/store", "sdk"}},
        {"device/dh/rows", {"device/accounts", "device/dh/logins", "device/registry", "device/store", "sdk"}},
        {"device/dh/search", {"device/dh/logins", "device/registry", "device/search", "sdk"}},
        {"device/dh/encode", {"device/dh/session", "device/registry", "device/store", "sdk"}},
        {"device/dh/camera",
         {"device/dh/encode", "device/dh/session", "device/registry", "device/store", "sdk"}},
        {"device/dh/configuration",
         {"device/accounts", "device/batch", "device/dh/camera", "device/dh/encode", "device/dh/logins",
          "device/dh/session", "device/registry", "device/store", "sdk"}},
        {"device/dh/images",
         {"device/accounts", "device/dh/configuration", "device/dh/logins", "device/dh/session",
          "device/registry", "device/store", "files", "media", "sdk"}},
        {"device/dh/system",
         {"device/accounts", "device/dh/logins", "device/dh/session", "device/registry", "device/store",
          "sdk"}},
        {"device/dh/inspection",
         {"device/accounts", "device/dh/encode", "device/dh/logins", "device/dh/session", "device/dh/system",
          "device/registry", "device/store", "sdk"}},
        {"device/dh/lists",
         {"device/accounts", "device/dh/logins", "device/registry", "device/store", "files", "sdk",
          "sheets"}},
        {"device/dh/upgrade",
         {"device/accounts", "device/batch", "device/dh/logins", "device/dh/session", "device/registry",
          "device/store", "sdk", "sheets"}},
        {"device/dh",
         {"device/accounts", "device/batch", "device/dh/configuration", "device/dh/lists", "device/dh/logins",
          "device/dh/images", "device/dh/inspection", "device/dh/rows", "device/dh/search",
          "device/dh/session", "device/dh/system", "device/dh/upgrade", "device/registry", "device/store",
          "sdk"}},
        {"cgi",
         {"device/batch", "device/registry", "device/store", "files", "sdk", "sdk/certificates", "sheets"}},
        {"commandline",
         {"cgi", "device/accounts", "device/batch", "device/forms", "device/models", "device/registry",
          "device/search", "device/store", "report"}},
        {"report", {"device/batch", "device/registry", "device/store", "documents", "files", "sdk"}},
        {"gallery", {"device/batch", "device/registry", "device/store", "files", "sdk"}},
        {"qml/configtools",
         {"device/accounts", "device/batch", "device/forms", "device/models", "device/registry",
          "device/search", "device/sites", "device/store", "device/work", "favourites", "files", "gallery",
          "media", "qml/datetimevalidator", "report"}},
        {"qml/datetimevalidator", {}},
        {"documents", {}},
        {"site",
         {"sdk", "sdk/configtext", "sdk/demo", "sdk/demo/device", "sdk/demo/http", "sdk/demo/scene",
          "sdk/demo/site", "sdk/demo/streams", "sdk/demo/upgrade"}},
        {"app", {"*"}},
        {"tests", {"*"}},
        {"benchmarks", {"*"}},
        {"fuzz", {"*"}},
    };
    return table;
}

/// The folder of the table that contains `path` (relative to the project): the longest matching name.
const Folder *folderOf(std::string_view path)
{
    const Folder *found = nullptr;
    for (const Folder &folder : folders()) {
        const bool inside = path.size() > folder.name.size() && path.starts_with(folder.name) &&
                            path[folder.name.size()] == '/';
        if (inside && (!found || folder.name.size() > found->name.size()))
            found = &folder;
    }
    return found;
}

/// The reason why `file` must not include `included`; empty if it may.
std::optional<std::string> objection(std::string_view file, std::string_view included)
{
    const Folder *from = folderOf(file);
    if (!from)
        return "the folder of the file is missing in the table of tests/lint/architecture.cpp";
    const Folder *to = folderOf(included);
    if (!to || to == from)
        return std::nullopt; // a file of the same folder or of an external library
    const auto isAllowed = [to](std::string_view name) {
        return name == "*" || name == to->name;
    };
    if (std::none_of(from->mayInclude.begin(), from->mayInclude.end(), isAllowed))
        return std::string(from->name) + "/ must not include " + std::string(to->name) + "/";
    // Only the folder itself and its tests include files of internal/.
    const bool isTest = from->name == "tests" || from->name == "benchmarks" || from->name == "fuzz";
    if (!isTest && included.find("/internal/") != std::string_view::npos)
        return "internal/ is private to " + std::string(to->name) + "/";
    return std::nullopt;
}

/// The included units of each unit. A header and its source are one unit, named by the path without suffix.
using Includes = std::map<std::string, std::set<std::string>>;

std::string unitOf(std::string_view path)
{
    return std::string(path.substr(0, path.rfind('.')));
}

/// The units of a cycle, each of which includes the next one; empty if there is no cycle.
std::vector<std::string> cycleIn(Includes includes)
{
    const auto remains = [&includes](const std::string &unit) {
        return includes.contains(unit);
    };
    // Units that include no remaining unit are not part of a cycle.
    std::vector<std::string> ends;
    do {
        ends.clear();
        for (const auto &[unit, included] : includes) {
            if (std::ranges::none_of(included, remains))
                ends.push_back(unit);
        }
        for (const std::string &unit : ends)
            includes.erase(unit);
    } while (!ends.empty());

    std::vector<std::string> cycle;
    if (includes.empty())
        return cycle;
    std::string unit = includes.begin()->first;
    while (std::ranges::find(cycle, unit) == cycle.end()) {
        cycle.push_back(unit);
        unit = *std::ranges::find_if(includes.at(unit), remains);
    }
    cycle.erase(cycle.begin(), std::ranges::find(cycle, unit)); // units that only lead to the cycle
    return cycle;
}

/// Checks the includes of a file and adds them to `includes`.
int checkFile(const fs::path &root, const fs::path &path, Includes &includes)
{
    static const std::regex pattern("^\\s*#\\s*include\\s*[\"<]([^\">]+)[\">]");
    const std::string file = path.lexically_relative(root).generic_string();
    const std::string unit = unitOf(file);
    std::set<std::string> &units = includes[unit];
    std::ifstream stream(path);
    int faults = 0;
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        std::smatch match;
        if (!std::regex_search(line, match, pattern))
            continue;
        const std::string included = match[1].str();
        if (unitOf(included) != unit)
            units.insert(unitOf(included));
        if (const auto fault = objection(file, included)) {
            std::cerr << file << ':' << number << ": " << *fault << '\n';
            ++faults;
        }
    }
    return faults;
}

int checkProject(const fs::path &root)
{
    Includes includes;
    int faults = 0;
    int files = 0;
    for (fs::recursive_directory_iterator entry(root), end; entry != end; ++entry) {
        const std::string name = entry->path().filename().string();
        if (entry->is_directory() && (name == "build" || name.starts_with('.')))
            entry.disable_recursion_pending();
        const std::string extension = entry->path().extension().string();
        if (entry->is_regular_file() && (extension == ".h" || extension == ".cpp")) {
            ++files;
            faults += checkFile(root, entry->path(), includes);
        }
    }
    if (const auto cycle = cycleIn(includes); !cycle.empty()) {
        std::cerr << "these files include each other:\n";
        for (const std::string &unit : cycle)
            std::cerr << "  " << unit << '\n';
        ++faults;
    }
    if (files == 0)
        std::cerr << root << " contains no source\n";
    return faults == 0 && files > 0 ? 0 : 1;
}

/// Tests the check with allowed and forbidden includes.
int selfTest()
{
    struct Case
    {
        std::string_view file;
        std::string_view included;
        bool allowed;
    };
    const Case cases[] = {
        {"device/store/devicestore.h", "sdk/clock.h", true},
        {"device/store/devicestore.h", "device/store/devicerow.h", true},
        {"device/store/devicestore.h", "QHash", true},
        {"cgi/internal/a.cpp", "cgi/internal/a.h", true},
        {"app/main.cpp", "sdk/demo/demosite.h", true},
        {"tests/device/tst_x.cpp", "device/internal/x.h", true},
        {"device/registry/devicefactory.cpp", "device/dh/devicedh.h", false},
        {"device/store/devicestore.cpp", "app/localconfig.h", false},
        {"device/dh/devicedh.cpp", "sdk/demo/demosite.h", false},
        {"device/dh/devicedh.cpp", "sdk/configtext/internal/x.h", false},
        {"sdk/netlibrary.h", "device/store/devicerow.h", false},
        {"elsewhere/x.cpp", "QHash", false},
    };
    int faults = 0;
    for (const Case &one : cases) {
        if (objection(one.file, one.included).has_value() == one.allowed) {
            std::cerr << one.file << " including " << one.included << " gives the wrong result\n";
            ++faults;
        }
    }
    if (!cycleIn({{"a", {"b", "QHash"}}, {"b", {"c"}}, {"c", {}}}).empty()) {
        std::cerr << "a cycle is found where there is none\n";
        ++faults;
    }
    if (cycleIn({{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}, {"d", {}}}) !=
        std::vector<std::string>{"b", "c"}) {
        std::cerr << "the cycle is not found\n";
        ++faults;
    }
    return faults == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: lint_architecture PROJECT_FOLDER | --self-test\n";
        return 2;
    }
    return std::string_view(argv[1]) == "--self-test" ? selfTest() : checkProject(argv[1]);
}
