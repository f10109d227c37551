// A request to a service, taken apart.
#pragma once

#include <QByteArray>
#include <QString>

#include <pugixml.hpp>

#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace site {

/// Who says to be asking, and how it proves that.
struct UserNameToken
{
    QString user;
    QByteArray password; ///< as it stands in the message
    bool isDigest = false;
    QByteArray nonce;   ///< decoded
    QByteArray created; ///< as it stands in the message
};

struct SoapRequest
{
    std::unique_ptr<pugi::xml_document> document; ///< that `operation` is in
    pugi::xml_node operation;
    std::string prefix; ///< of its service, as soap/namespaces.h has it; empty for an unknown one
    std::string name;
    std::optional<UserNameToken> token;
};

enum class UnusableRequest
{
    NoXml,
    NoEnvelope,    ///< or one of another version
    NotUnderstood, ///< a header that has to be understood
};

[[nodiscard]] std::variant<SoapRequest, UnusableRequest> readSoapRequest(const QByteArray &bytes);

/// Whether the token was made with that password. `now` is the time of the device (UTC, ms since 1970): a
/// token that was made long before or after is refused.
[[nodiscard]] bool provesPassword(const UserNameToken &token, const QString &password, std::int64_t now);

} // namespace site
