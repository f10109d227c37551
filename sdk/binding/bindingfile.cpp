#include "sdk/binding/bindingfile.h"

#include <fstream>
#include <string_view>

namespace sdk::binding {

namespace {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view whitespace = " \t\r";
    const std::size_t begin = text.find_first_not_of(whitespace);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(whitespace) - begin + 1);
}

} // namespace

std::variant<BindingSections, BindingProblem> readBindingFile(const std::filesystem::path &file)
{
    std::ifstream stream(file);
    if (!stream)
        return BindingProblem{.kind = BindingProblem::Kind::FileUnreadable, .file = file.string()};
    BindingSections sections;
    BindingSection *section = nullptr;
    for (std::string text; std::getline(stream, text);) {
        const std::string_view line = trimmed(text);
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[' && line.back() == ']') {
            section = &sections[std::string(line.substr(1, line.size() - 2))];
            continue;
        }
        const std::size_t sign = line.find('=');
        const std::string_view name = trimmed(line.substr(0, sign));
        const std::string_view value =
            sign == std::string_view::npos ? std::string_view() : trimmed(line.substr(sign + 1));
        if (!section || name.empty() || value.empty())
            return BindingProblem{
                .kind = BindingProblem::Kind::LineUnusable, .file = file.string(), .name = std::string(line)};
        if (name == "file")
            section->library = value;
        else
            section->entries[std::string(name)] = value;
    }
    return sections;
}

} // namespace sdk::binding
