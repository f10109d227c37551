// What devices hear and say so that clients find them.
#pragma once

#include "site/soap/xmlwriting.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace site {

/// A message that a device may answer.
struct DiscoveryRequest
{
    enum class Kind
    {
        Probe,   ///< who is there of these types and scopes?
        Resolve, ///< where is this device?
    };
    struct Type
    {
        std::string uri;
        std::string name;
    };
    Kind kind = Kind::Probe;
    QString messageId;
    std::vector<Type> types;    ///< a device must be of all of them
    QStringList scopes;         ///< a device must have all of them
    bool comparesWhole = false; ///< scopes letter by letter, not by their parts
    bool knowsRule = true;      ///< false for a rule of comparing scopes that devices do not know
    QString endpoint;           ///< of Resolve
};

/// Nothing for what is no such message.
[[nodiscard]] std::optional<DiscoveryRequest> readDiscoveryRequest(const QByteArray &bytes);

/// What a device says of itself.
struct DiscoveryIdentity
{
    QString endpoint; ///< "urn:uuid:...", which it keeps
    QStringList scopes;
    QStringList addresses; ///< of its device service
};

/// Whether the request is about such a device.
[[nodiscard]] bool matches(const DiscoveryRequest &request, const DiscoveryIdentity &identity);

/// Counts the messages of a device since its start.
struct DiscoverySequence
{
    std::int64_t instance = 0; ///< rises with each start
    std::int64_t number = 0;
};

[[nodiscard]] QByteArray answerTo(const DiscoveryRequest &request, const DiscoveryIdentity &identity,
                                  DiscoverySequence sequence, XmlManner manner);
[[nodiscard]] QByteArray helloMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence,
                                      XmlManner manner);
[[nodiscard]] QByteArray byeMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence,
                                    XmlManner manner);

} // namespace site
