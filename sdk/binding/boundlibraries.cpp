#include "sdk/binding/boundlibraries.h"

#include "sdk/binding/bindingfile.h"
#include "sdk/binding/dynamiclibrary.h"
#include "sdk/binding/internal/boundhelpers.h"
#include "sdk/binding/internal/boundnetlibrary.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

namespace sdk::binding {

namespace {

using Kind = BindingProblem::Kind;

/// The error in the list of functions of a section, if any.
std::optional<BindingProblem> listProblem(const BindingSection &section,
                                          const std::vector<EntryPoint> &functions)
{
    for (const EntryPoint &function : functions) {
        if (!section.entries.contains(function.name))
            return BindingProblem{
                .kind = Kind::FunctionMissing, .file = section.library, .name = function.name};
    }
    for (const auto &entry : section.entries) {
        const std::string &name = entry.first;
        const bool isKnown =
            std::any_of(functions.begin(), functions.end(),
                        [&name](const EntryPoint &function) { return name == function.name; });
        if (!isKnown)
            return BindingProblem{.kind = Kind::FunctionUnknown, .file = section.library, .name = name};
    }
    return std::nullopt;
}

/// The libraries of a binding file while they are loaded.
class Loader
{
public:
    Loader(std::filesystem::path folder, BindingSections sections)
        : m_folder(std::move(folder)), m_sections(std::move(sections))
    {
    }

    [[nodiscard]] const std::optional<BindingProblem> &problem() const { return m_problem; }

    /// Sets the pointers of `functions`, unless there is a problem.
    void load(const char *sectionName, const std::vector<EntryPoint> &functions)
    {
        if (!m_problem)
            m_problem = resolve(sectionName, functions);
    }

    void keepLibraries()
    {
        for (const auto &library : m_libraries)
            library->keep();
    }

private:
    std::optional<BindingProblem> resolve(const char *sectionName, const std::vector<EntryPoint> &functions)
    {
        const auto found = m_sections.find(sectionName);
        if (found == m_sections.end() || found->second.library.empty())
            return BindingProblem{.kind = Kind::SectionMissing, .name = sectionName};
        const BindingSection &section = found->second;
        if (std::optional<BindingProblem> problem = listProblem(section, functions))
            return problem;
        const auto *const utf8 = reinterpret_cast<const char8_t *>(section.library.c_str());
        const std::filesystem::path file = m_folder / std::filesystem::path(utf8);
        const auto &library = m_libraries.emplace_back(std::make_unique<DynamicLibrary>());
        if (std::string reason = library->open(file); !reason.empty())
            return BindingProblem{
                .kind = Kind::LibraryUnusable, .file = section.library, .name = std::move(reason)};
        for (const EntryPoint &function : functions) {
            const std::string &entry = section.entries.at(function.name);
            void *const address = library->entry(entry);
            if (!address)
                return BindingProblem{.kind = Kind::EntryMissing, .file = section.library, .name = entry};
            // A function pointer has the same representation as an address on every system with such
            // libraries.
            std::memcpy(function.pointer, &address, sizeof(address));
        }
        return std::nullopt;
    }

    const std::filesystem::path m_folder;
    const BindingSections m_sections;
    std::vector<std::unique_ptr<DynamicLibrary>> m_libraries;
    std::optional<BindingProblem> m_problem;
};

} // namespace

std::variant<SdkLibraries, BindingProblem> bindLibraries(const std::filesystem::path &file)
{
    std::variant<BindingSections, BindingProblem> sections = readBindingFile(file);
    if (auto *problem = std::get_if<BindingProblem>(&sections))
        return std::move(*problem);
    NetworkEntryPoints network;
    ConfigurationEntryPoints configuration;
    DecoderEntryPoints decoder;
    AgentEntryPoints agent;
    Loader loader(std::filesystem::absolute(file).parent_path(),
                  std::get<BindingSections>(std::move(sections)));
    loader.load("network", network.all());
    loader.load("configuration", configuration.all());
    loader.load("decoder", decoder.all());
    loader.load("agent", agent.all());
    if (loader.problem())
        return *loader.problem();
    loader.keepLibraries();
    return SdkLibraries{.net = std::make_shared<BoundNetLibrary>(network),
                        .config = std::make_shared<BoundConfigLibrary>(configuration),
                        .decoder = std::make_shared<BoundDecoderLibrary>(decoder),
                        .p2pAgent = std::make_shared<BoundP2PAgentLibrary>(agent),
                        .clock = nullptr};
}

} // namespace sdk::binding
