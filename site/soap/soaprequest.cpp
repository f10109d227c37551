#include "site/soap/soaprequest.h"

#include "site/soap/namespaces.h"
#include "site/soap/xmlreading.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <cstdlib>

namespace site {

namespace {

std::optional<UserNameToken> readToken(pugi::xml_node header)
{
    const pugi::xml_node token = nodeAt(header, "wsse:Security/wsse:UsernameToken");
    if (!token)
        return std::nullopt;
    UserNameToken read;
    read.user = textAt(token, "wsse:Username").value_or(QString());
    const pugi::xml_node password = childNamed(token, "wsse:Password");
    read.password = textOf(password).toUtf8();
    read.isDigest = std::string_view(password.attribute("Type").value()).ends_with("#PasswordDigest");
    read.nonce = QByteArray::fromBase64(textAt(token, "wsse:Nonce").value_or(QString()).toLatin1());
    read.created = textAt(token, "wsu:Created").value_or(QString()).toLatin1();
    return read;
}

bool demandsMore(pugi::xml_node header)
{
    for (const pugi::xml_node entry : header.children()) {
        if (entry.type() != pugi::node_element)
            continue;
        for (const pugi::xml_attribute attribute : entry.attributes()) {
            const std::string_view name = attribute.name();
            const std::string_view value = attribute.value();
            const bool isDemand = name.ends_with(":mustUnderstand") && (value == "1" || value == "true");
            const std::string_view uri = namespaceOf(entry);
            const bool isKnown = uri == namespaceUri("wsse") || uri == namespaceUri("wsa") ||
                                 uri == "http://www.w3.org/2005/08/addressing";
            if (isDemand && !isKnown)
                return true;
        }
    }
    return false;
}

} // namespace

std::variant<SoapRequest, UnusableRequest> readSoapRequest(const QByteArray &bytes)
{
    SoapRequest request;
    request.document = std::make_unique<pugi::xml_document>();
    if (!readXml(bytes, *request.document))
        return UnusableRequest::NoXml;
    const pugi::xml_node envelope = childNamed(*request.document, "env:Envelope");
    request.operation = firstElement(childNamed(envelope, "env:Body"));
    if (!envelope || !request.operation)
        return UnusableRequest::NoEnvelope;
    const pugi::xml_node header = childNamed(envelope, "env:Header");
    if (demandsMore(header))
        return UnusableRequest::NotUnderstood;
    request.prefix = namespacePrefix(namespaceOf(request.operation));
    request.name = localName(request.operation);
    request.token = readToken(header);
    return request;
}

bool provesPassword(const UserNameToken &token, const QString &password, std::int64_t now)
{
    constexpr std::int64_t window = std::int64_t{5} * 60 * 1000;
    const QDateTime created = QDateTime::fromString(QString::fromLatin1(token.created), Qt::ISODateWithMs);
    if (!token.isDigest || !created.isValid() || std::llabs(created.toMSecsSinceEpoch() - now) > window)
        return false;
    const QByteArray proof = token.nonce + token.created + password.toUtf8();
    return QCryptographicHash::hash(proof, QCryptographicHash::Sha1).toBase64() == token.password.trimmed();
}

} // namespace site
