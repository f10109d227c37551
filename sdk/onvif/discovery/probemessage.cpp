#include "sdk/onvif/discovery/probemessage.h"

#include "sdk/onvif/services/macaddress.h"
#include "sdk/onvif/soap/onvifnamespaces.h"
#include "sdk/onvif/soap/soaprequest.h"
#include "sdk/onvif/soap/xmldocument.h"

#include <QByteArray>
#include <QUuid>

#include <algorithm>
#include <sstream>

namespace sdk::onvif {

namespace {

constexpr std::size_t longestScopes = 8192;
constexpr std::size_t longestText = 120;
constexpr std::size_t maximumServices = 8;
constexpr std::string_view scopePrefix = "onvif://www.onvif.org/";

std::string lowered(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return lower;
}

std::vector<std::string_view> words(std::string_view text)
{
    constexpr std::string_view whitespace = " \t\r\n";
    std::vector<std::string_view> found;
    for (std::size_t begin = text.find_first_not_of(whitespace); begin != std::string_view::npos;) {
        const std::size_t end = std::min(text.find_first_of(whitespace, begin), text.size());
        found.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(whitespace, end);
    }
    return found;
}

/// The decoded string of a scope, which is percent-encoded UTF-8. "_" is kept, since names contain it.
std::string decoded(std::string_view text)
{
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    return QByteArray::fromPercentEncoding(bytes).left(longestText).toStdString();
}

/// Sets `field` if it is empty: devices repeat scopes, and the first one is the fixed scope.
void take(std::string &field, std::string_view value)
{
    if (field.empty())
        field = decoded(value);
}

void readScope(std::string_view scope, DeviceAnnouncement &announcement)
{
    if (!lowered(scope.substr(0, scopePrefix.size())).starts_with(scopePrefix))
        return;
    const std::string_view rest = scope.substr(scopePrefix.size());
    const std::size_t slash = rest.find('/');
    if (slash == std::string_view::npos)
        return;
    const std::string category = lowered(rest.substr(0, slash));
    const std::string_view value = rest.substr(slash + 1);
    if (category == "name")
        take(announcement.name, value);
    else if (category == "hardware")
        take(announcement.model, value);
    else if (category == "location")
        take(announcement.location, value);
    else if (category == "mac")
        announcement.mac = canonicalMac(value);
    else if (category == "type" && lowered(value).find("recorder") != std::string::npos)
        announcement.isRecorder = true;
}

std::string uuidOf(std::string_view address)
{
    std::string text = lowered(address);
    for (const std::string_view prefix : {"urn:", "uuid:"}) {
        if (text.starts_with(prefix))
            text.erase(0, prefix.size());
    }
    // Only hexadecimal digits and hyphens, since the string identifies a device in lists and files.
    const bool isPlain = std::all_of(text.begin(), text.end(), [](char character) {
        return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f') ||
               character == '-';
    });
    constexpr std::size_t length = 36;
    return isPlain && text.size() == length ? text : std::string();
}

/// True if the types contain a device type of this standard, or if there are no types.
bool isOfStandard(std::string_view types)
{
    const std::vector<std::string_view> names = words(types);
    return names.empty() || std::any_of(names.begin(), names.end(), [](std::string_view name) {
               const std::string_view local = name.substr(name.find(':') + 1);
               return local == "NetworkVideoTransmitter" || local == "Device" ||
                      local == "NetworkVideoStorage" || local == "NetworkVideoDisplay" ||
                      local == "NetworkVideoAnalytics";
           });
}

std::optional<DeviceAnnouncement> readMatch(const XmlElement &match)
{
    if (!isOfStandard(match.child(ns::discovery, "Types").text()))
        return std::nullopt;
    DeviceAnnouncement announcement;
    announcement.isLeaving = match.name() == "Bye";
    announcement.uuid =
        uuidOf(match.child(ns::addressing, "EndpointReference").child(ns::addressing, "Address").text());
    const std::string_view scopes = match.child(ns::discovery, "Scopes").text();
    for (const std::string_view scope : words(scopes.substr(0, longestScopes)))
        readScope(scope, announcement);
    for (const std::string_view url : words(match.child(ns::discovery, "XAddrs").text())) {
        const std::optional<ServiceAddress> service = serviceAddressOf(url);
        if (service && announcement.services.size() < maximumServices)
            announcement.services.push_back(*service);
    }
    return announcement;
}

std::string newMessageNumber()
{
    return "urn:uuid:" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
}

} // namespace

std::string probeMessage(ProbeKind kind)
{
    pugi::xml_document document;
    pugi::xml_node envelope = append(document, "s:Envelope");
    setAttribute(envelope, "xmlns:s", ns::envelope);
    setAttribute(envelope, "xmlns:a", ns::addressing);
    setAttribute(envelope, "xmlns:d", ns::discovery);
    pugi::xml_node header = append(envelope, "s:Header");
    pugi::xml_node action = append(header, "a:Action", std::string(ns::discovery) + "/Probe");
    setAttribute(action, "s:mustUnderstand", "1");
    append(header, "a:MessageID", newMessageNumber());
    append(append(header, "a:ReplyTo"), "a:Address", std::string(ns::addressing) + "/role/anonymous");
    pugi::xml_node to = append(header, "a:To", "urn:schemas-xmlsoap-org:ws:2005:04:discovery");
    setAttribute(to, "s:mustUnderstand", "1");
    pugi::xml_node probe = append(append(envelope, "s:Body"), "d:Probe");
    if (kind == ProbeKind::Transmitters) {
        pugi::xml_node types = append(probe, "d:Types", "dn:NetworkVideoTransmitter");
        setAttribute(types, "xmlns:dn", ns::network);
    }
    std::ostringstream text;
    document.save(text, "", pugi::format_raw, pugi::encoding_utf8);
    return text.str();
}

DiscoveryMessage readDiscoveryMessage(std::string_view datagram)
{
    const std::optional<XmlDocument> document = XmlDocument::read(datagram);
    if (!document || !document->root().is(ns::envelope, "Envelope"))
        return {};
    const XmlElement content = document->root().child(ns::envelope, "Body").firstChild();
    if (content.is(ns::discovery, "Probe") || content.is(ns::discovery, "Resolve"))
        return {.kind = DiscoveryMessage::Kind::Request};
    std::vector<XmlElement> matches;
    if (content.is(ns::discovery, "ProbeMatches"))
        matches = content.children(ns::discovery, "ProbeMatch");
    else if (content.is(ns::discovery, "ResolveMatches"))
        matches = content.children(ns::discovery, "ResolveMatch");
    else if (content.is(ns::discovery, "Hello") || content.is(ns::discovery, "Bye"))
        matches = {content};
    else
        return {};
    if (matches.size() > maximumMatches)
        matches.resize(maximumMatches);
    DiscoveryMessage message = {.kind = DiscoveryMessage::Kind::Announcement};
    for (const XmlElement &match : matches) {
        if (std::optional<DeviceAnnouncement> announcement = readMatch(match))
            message.announcements.push_back(std::move(*announcement));
        else
            ++message.otherDevices;
    }
    return message;
}

} // namespace sdk::onvif
