// A parsed request to a service.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace site {

/// The user-name token of WS-Security.
struct UserNameToken
{
    QString user;
    QByteArray password; ///< as in the message: the digest in base64, or the password itself
    bool isDigest = false;
    QByteArray nonce;   ///< decoded
    QByteArray created; ///< as in the message
};

/// A message with an operation, which a client sends to a service of a device.
struct SoapRequest
{
    std::unique_ptr<pugi::xml_document> document; ///< owns `operation`
    pugi::xml_node operation;                     ///< the first element of the body
    std::string prefix; ///< of its namespace in soap/namespaces.h: "tds"; empty for an unknown namespace
    std::string name;   ///< of the operation, without a prefix: "GetUsers"
    std::optional<UserNameToken> token; ///< nothing for a message without one
};

/// The reason why a message is not a request.
enum class UnusableRequest
{
    NoXml,         ///< readXml() has failed
    NoEnvelope,    ///< no SOAP 1.2 envelope with an operation in its body
    NotUnderstood, ///< it has an unknown header with mustUnderstand
};

/// Reads a message. The namespace and the name of the operation may be unknown.
[[nodiscard]] std::variant<SoapRequest, UnusableRequest> readSoapRequest(const QByteArray &bytes);

/// True if the token was made with that password. `now` is the time of the device (UTC, ms since 1970): a
/// token whose time differs by more than five minutes is refused, and so is a token without a digest.
[[nodiscard]] bool provesPassword(const UserNameToken &token, const QString &password, std::int64_t now);

} // namespace site
