#include "site/discovery/discoverymessages.h"

#include "site/soap/namespaces.h"
#include "site/soap/xmlreading.h"

#include <QUrl>
#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace site {

namespace {

constexpr std::string_view discoveryUri = namespaceUri("d");
constexpr const char *everybody = "urn:schemas-xmlsoap-org:ws:2005:04:discovery";
constexpr const char *deviceTypes = "dn:NetworkVideoTransmitter tds:Device";

QStringList wordsOf(const QString &text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

void readProbe(pugi::xml_node probe, DiscoveryRequest &request)
{
    const pugi::xml_node typesNode = childNamed(probe, "d:Types");
    const QStringList names = wordsOf(textOf(typesNode));
    for (const QString &name : names) {
        const qsizetype colon = name.indexOf(u':');
        const std::string prefix = name.left(std::max<qsizetype>(colon, 0)).toStdString();
        request.types.push_back(
            {std::string(namespaceOf(typesNode, prefix)), name.mid(colon + 1).toStdString()});
    }
    const pugi::xml_node scopes = childNamed(probe, "d:Scopes");
    request.scopes = wordsOf(textOf(scopes));
    const std::string_view rule = scopes.attribute("MatchBy").value();
    request.comparesCharacters = rule == std::string(discoveryUri) + "/strcmp0";
    request.knowsRule =
        rule.empty() || request.comparesCharacters || rule == std::string(discoveryUri) + "/rfc3986";
}

bool isKnownType(const DiscoveryRequest::Type &type)
{
    return (type.uri == namespaceUri("dn") && type.name == "NetworkVideoTransmitter") ||
           (type.uri == namespaceUri("tds") && type.name == "Device");
}

/// Comparison by segments: the same scheme and host, and a path that starts with the same segments.
bool scopeFits(const QString &requested, const QString &own, bool comparesCharacters)
{
    if (comparesCharacters || requested == own)
        return requested == own;
    const QUrl requestedUrl(requested);
    const QUrl ownUrl(own);
    if (requestedUrl.scheme().toLower() != ownUrl.scheme().toLower() ||
        requestedUrl.host().toLower() != ownUrl.host().toLower())
        return false;
    const QStringList requestedParts = requestedUrl.path().split(u'/', Qt::SkipEmptyParts);
    const QStringList ownParts = ownUrl.path().split(u'/', Qt::SkipEmptyParts);
    return ownParts.first(std::min(requestedParts.size(), ownParts.size())) == requestedParts;
}

void writeHead(SoapMessage &message, const char *action, const QString &relatesTo, DiscoverySequence sequence)
{
    XmlElement header = message.header();
    header.add("wsa:MessageID", u"urn:uuid:"_s + QUuid::createUuid().toString(QUuid::WithoutBraces));
    if (relatesTo.isEmpty()) {
        header.add("wsa:To", everybody);
    } else {
        header.add("wsa:RelatesTo", relatesTo);
        header.add("wsa:To", "http://schemas.xmlsoap.org/ws/2004/08/addressing/role/anonymous");
    }
    header.add("wsa:Action", std::string(discoveryUri) + "/" + action);
    header.add("d:AppSequence")
        .attribute("InstanceId", QString::number(sequence.instance))
        .attribute("MessageNumber", QString::number(sequence.number));
}

void writeIdentity(XmlElement element, const DiscoveryIdentity &identity)
{
    element.add("wsa:EndpointReference").add("wsa:Address", identity.endpoint);
    element.add("d:Types", deviceTypes);
    element.add("d:Scopes", identity.scopes.join(u' '));
    if (!identity.addresses.isEmpty())
        element.add("d:XAddrs", identity.addresses.join(u' '));
    element.add("d:MetadataVersion", 1);
}

} // namespace

std::optional<DiscoveryRequest> readDiscoveryRequest(const QByteArray &bytes)
{
    pugi::xml_document document;
    if (!readXml(bytes, document))
        return std::nullopt;
    const pugi::xml_node envelope = childNamed(document, "env:Envelope");
    const std::optional<QString> messageId = textAt(envelope, "env:Header/wsa:MessageID");
    const pugi::xml_node body = childNamed(envelope, "env:Body");
    if (!messageId)
        return std::nullopt;
    DiscoveryRequest request;
    request.messageId = *messageId;
    if (const pugi::xml_node probe = childNamed(body, "d:Probe")) {
        readProbe(probe, request);
        return request;
    }
    if (const pugi::xml_node resolve = childNamed(body, "d:Resolve")) {
        request.kind = DiscoveryRequest::Kind::Resolve;
        request.endpoint = textAt(resolve, "wsa:EndpointReference/wsa:Address").value_or(QString());
        return request;
    }
    return std::nullopt;
}

bool matches(const DiscoveryRequest &request, const DiscoveryIdentity &identity)
{
    if (request.kind == DiscoveryRequest::Kind::Resolve)
        return request.endpoint == identity.endpoint;
    return request.knowsRule && std::all_of(request.types.begin(), request.types.end(), isKnownType) &&
           std::all_of(request.scopes.begin(), request.scopes.end(), [&](const QString &requested) {
               return std::any_of(identity.scopes.begin(), identity.scopes.end(), [&](const QString &own) {
                   return scopeFits(requested, own, request.comparesCharacters);
               });
           });
}

QByteArray responseTo(const DiscoveryRequest &request, const DiscoveryIdentity &identity,
                      DiscoverySequence sequence, XmlManner manner)
{
    const bool isProbe = request.kind == DiscoveryRequest::Kind::Probe;
    SoapMessage message;
    writeHead(message, isProbe ? "ProbeMatches" : "ResolveMatches", request.messageId, sequence);
    XmlElement response = message.body().add(isProbe ? "d:ProbeMatches" : "d:ResolveMatches");
    writeIdentity(response.add(isProbe ? "d:ProbeMatch" : "d:ResolveMatch"), identity);
    return message.bytes(manner);
}

QByteArray helloMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence, XmlManner manner)
{
    SoapMessage message;
    writeHead(message, "Hello", {}, sequence);
    writeIdentity(message.body().add("d:Hello"), identity);
    return message.bytes(manner);
}

QByteArray byeMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence, XmlManner manner)
{
    SoapMessage message;
    writeHead(message, "Bye", {}, sequence);
    message.body().add("d:Bye").add("wsa:EndpointReference").add("wsa:Address", identity.endpoint);
    return message.bytes(manner);
}

} // namespace site
