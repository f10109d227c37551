#include "site/soap/xmlwriting.h"

#include "site/soap/namespaces.h"

#include <map>
#include <set>

namespace site {

namespace {

constexpr std::string_view envelopePrefix = "env";

std::string_view prefixOf(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? std::string_view() : name.substr(0, colon);
}

/// True for elements whose text is a qualified name.
bool holdsNames(pugi::xml_node element)
{
    const std::string_view name = element.name();
    return name == "env:Value" || name == "d:Types";
}

/// The prefixes in a message.
struct Prefixes
{
    std::set<std::string> all = {};
    std::set<std::string, std::less<>> inTexts = {};
};

void collectPrefixes(pugi::xml_node node, Prefixes &prefixes)
{
    prefixes.all.insert(std::string(prefixOf(node.name())));
    if (holdsNames(node)) {
        std::string_view text = node.text().get();
        for (std::size_t colon = text.find(':'); colon != std::string_view::npos; colon = text.find(':')) {
            const std::size_t space = text.substr(0, colon).rfind(' ');
            const std::size_t begin = space == std::string_view::npos ? 0 : space + 1;
            prefixes.inTexts.emplace(text.substr(begin, colon - begin));
            text.remove_prefix(colon + 1);
        }
        prefixes.all.insert(prefixes.inTexts.begin(), prefixes.inTexts.end());
    }
    for (const pugi::xml_node child : node.children())
        collectPrefixes(child, prefixes);
}

using Names = std::map<std::string, std::string, std::less<>>;

/// The device's name of each prefix; an empty name stands for the default namespace.
Names namesOf(const Prefixes &prefixes, XmlManner manner)
{
    const std::set<std::string_view> named = {"env", "d", "wsa"};
    Names names;
    int number = 0;
    for (const std::string &prefix : prefixes.all) {
        if (prefix.empty())
            continue;
        if (manner == XmlManner::UsualPrefixes)
            names[prefix] = prefix == envelopePrefix ? "SOAP-ENV" : prefix;
        else if (manner == XmlManner::OwnPrefixes)
            names[prefix] = prefix == envelopePrefix ? "s" : "ns" + std::to_string(++number);
        else
            // The default namespace does not apply to names in texts.
            names[prefix] =
                named.contains(prefix) || prefixes.inTexts.contains(prefix) ? prefix : std::string();
    }
    return names;
}

std::string renamed(std::string_view name, const Names &names)
{
    const std::string_view prefix = prefixOf(name);
    const auto found = names.find(prefix);
    if (prefix.empty() || found == names.end())
        return std::string(name);
    const std::string_view local = name.substr(prefix.size() + 1);
    return found->second.empty() ? std::string(local) : found->second + ":" + std::string(local);
}

void renameText(pugi::xml_node element, const Names &names)
{
    const std::string text = element.text().get();
    std::string result;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        result += (begin == 0 ? "" : " ") + renamed(std::string_view(text).substr(begin, end - begin), names);
        begin = end + 1;
    }
    element.text().set(result.c_str());
}

void rename(pugi::xml_node node, const Names &names, std::string_view defaultUri)
{
    if (node.type() != pugi::node_element)
        return;
    if (holdsNames(node))
        renameText(node, names);
    const std::string_view prefix = prefixOf(node.name());
    const auto found = names.find(prefix);
    if (found != names.end() && found->second.empty()) {
        const std::string_view uri = namespaceUri(prefix);
        if (uri != defaultUri)
            node.prepend_attribute("xmlns").set_value(std::string(uri).c_str());
        defaultUri = uri;
    }
    node.set_name(renamed(node.name(), names).c_str());
    for (const pugi::xml_node child : node.children())
        rename(child, names, defaultUri);
}

class ByteWriter : public pugi::xml_writer
{
public:
    void write(const void *data, std::size_t size) override
    {
        bytes.append(static_cast<const char *>(data), static_cast<qsizetype>(size));
    }
    QByteArray bytes;
};

} // namespace

XmlElement XmlElement::add(const char *name, std::string_view text)
{
    XmlElement element = add(name);
    element.m_node.text().set(std::string(text).c_str());
    return element;
}

XmlElement XmlElement::add(const char *name, const QString &text)
{
    return add(name, text.toStdString());
}

XmlElement &XmlElement::attribute(const char *name, std::string_view value)
{
    m_node.append_attribute(name).set_value(std::string(value).c_str());
    return *this;
}

XmlElement &XmlElement::attribute(const char *name, const QString &value)
{
    return attribute(name, value.toStdString());
}

SoapMessage::SoapMessage()
    : m_envelope(m_document.append_child("env:Envelope")), m_body(m_envelope.append_child("env:Body"))
{
}

XmlElement SoapMessage::header()
{
    pugi::xml_node header = m_envelope.child("env:Header");
    if (!header)
        header = m_envelope.prepend_child("env:Header");
    return XmlElement(header);
}

QByteArray SoapMessage::bytes(XmlManner manner)
{
    Prefixes prefixes;
    collectPrefixes(m_envelope, prefixes);
    const Names names = namesOf(prefixes, manner);
    for (const auto &[prefix, name] : names) {
        if (!name.empty())
            m_envelope.append_attribute(("xmlns:" + name).c_str())
                .set_value(std::string(namespaceUri(prefix)).c_str());
    }
    rename(m_envelope, names, {});
    ByteWriter writer;
    writer.bytes = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    m_document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return writer.bytes;
}

} // namespace site
