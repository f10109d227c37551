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

struct SoapRequest
{
    std::unique_ptr<pugi::xml_document> document; ///< owns `operation`
    pugi::xml_node operation;
    std::string prefix; ///< of its service, by soap/namespaces.h; empty for an unknown one
    std::string name;
    std::optional<UserNameToken> token;
};

enum class UnusableRequest
{
    NoXml,
    NoEnvelope,    ///< or one of another version
    NotUnderstood, ///< an unknown header with mustUnderstand
};

[[nodiscard]] std::variant<SoapRequest, UnusableRequest> readSoapRequest(const QByteArray &bytes);

/// True if the token was made with that password. `now` is the time of the device (UTC, ms since 1970): a
/// token whose time differs by more than five minutes is refused, and so is a token without a digest.
[[nodiscard]] bool provesPassword(const UserNameToken &token, const QString &password, std::int64_t now);

} // namespace site
