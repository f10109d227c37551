// The messages of WS-Discovery that devices receive and send: Probe and Resolve with their responses, Hello
// and Bye.
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

/// A message that a device may respond to.
struct DiscoveryRequest
{
    enum class Kind
    {
        Probe,   ///< for devices of these types and scopes
        Resolve, ///< for the addresses of one device
    };
    /// A type of devices, by its XML namespace and its local name.
    struct Type
    {
        std::string uri;
        std::string name;
    };
    Kind kind = Kind::Probe;
    QString messageId;
    std::vector<Type> types;         ///< of Probe: a device must be of all of them; empty for any device
    QStringList scopes;              ///< of Probe: a device must have all of them; empty for any device
    bool comparesCharacters = false; ///< scopes are equal strings; otherwise, requested scopes are prefixes
                                     ///< by segments of the path
    bool knowsRule = true;           ///< false for an unknown matching rule: no device responds
    QString endpoint;                ///< of Resolve: the DiscoveryIdentity::endpoint
};

/// Reads a Probe or a Resolve with a message identifier. Nothing for any other message and for text that is
/// not XML.
[[nodiscard]] std::optional<DiscoveryRequest> readDiscoveryRequest(const QByteArray &bytes);

/// The identity that a device announces.
struct DiscoveryIdentity
{
    QString endpoint;      ///< "urn:uuid:...", which never changes
    QStringList scopes;    ///< URIs with its properties
    QStringList addresses; ///< URLs of its device service
};

/// True if the request applies to the device with this identity, which should respond. Devices are of the
/// types dn:NetworkVideoTransmitter and tds:Device.
[[nodiscard]] bool matches(const DiscoveryRequest &request, const DiscoveryIdentity &identity);

/// Counts the messages of a device since its start.
struct DiscoverySequence
{
    std::int64_t instance = 0; ///< time of the start, in seconds since 1970
    std::int64_t number = 0;   ///< of the message, from 1
};

// The texts of messages, with the namespace prefixes of `manner`.

/// The ProbeMatches or ResolveMatches for a request that matches.
[[nodiscard]] QByteArray responseTo(const DiscoveryRequest &request, const DiscoveryIdentity &identity,
                                    DiscoverySequence sequence, XmlManner manner);
/// The Hello with which a device announces that it is on the network.
[[nodiscard]] QByteArray helloMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence,
                                      XmlManner manner);
/// The Bye with which a device announces that it leaves; only the endpoint of `identity` is used.
[[nodiscard]] QByteArray byeMessage(const DiscoveryIdentity &identity, DiscoverySequence sequence,
                                    XmlManner manner);

} // namespace site
