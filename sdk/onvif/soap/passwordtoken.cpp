#include "sdk/onvif/soap/passwordtoken.h"

#include "sdk/onvif/soap/onvifnamespaces.h"
#include "sdk/onvif/soap/soaprequest.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDateTime>
#include <QRandomGenerator>

#include <array>
#include <sstream>

namespace sdk::onvif {

namespace {

constexpr std::string_view passwordType = "http://docs.oasis-open.org/wss/2004/01/"
                                          "oasis-200401-wss-username-token-profile-1.0#PasswordDigest";
constexpr std::string_view nonceEncoding = "http://docs.oasis-open.org/wss/2004/01/"
                                           "oasis-200401-wss-soap-message-security-1.0#Base64Binary";

std::string randomBytes()
{
    std::array<quint32, 4> words{};
    QRandomGenerator::system()->fillRange(words.data(), static_cast<qsizetype>(words.size()));
    return {reinterpret_cast<const char *>(words.data()), sizeof(words)};
}

QByteArray bytesOf(std::string_view text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

} // namespace

std::string passwordDigest(std::string_view nonce, std::string_view created, std::string_view password)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(bytesOf(nonce));
    hash.addData(bytesOf(created));
    hash.addData(bytesOf(password));
    return hash.result().toBase64().toStdString();
}

std::string passwordToken(std::string_view account, std::string_view password,
                          std::chrono::system_clock::time_point deviceTime)
{
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(deviceTime.time_since_epoch()).count();
    const std::string created =
        QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODateWithMs).toStdString();
    const std::string nonce = randomBytes();

    pugi::xml_document document;
    pugi::xml_node security = append(document, "wsse:Security");
    setAttribute(security, "xmlns:wsse", ns::security);
    setAttribute(security, "xmlns:wsu", ns::securityUtility);
    setAttribute(security, "s:mustUnderstand", "1");
    pugi::xml_node token = append(security, "wsse:UsernameToken");
    append(token, "wsse:Username", account);
    pugi::xml_node digest = append(token, "wsse:Password", passwordDigest(nonce, created, password));
    setAttribute(digest, "Type", passwordType);
    pugi::xml_node nonceElement = append(token, "wsse:Nonce", bytesOf(nonce).toBase64().toStdString());
    setAttribute(nonceElement, "EncodingType", nonceEncoding);
    append(token, "wsu:Created", created);

    std::ostringstream text;
    document.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return text.str();
}

} // namespace sdk::onvif
