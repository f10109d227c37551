#pragma once

#include <QObject>

/// Address checks and arithmetic for QML. Stateless; used on the main thread.
class AddressTools : public QObject
{
    Q_OBJECT
public:
    /// Error of a search range; the values of SearchRangeError (see there) for QML.
    enum RangeError
    {
        NoFault = 0,
        BeginAboveEnd = 1,
        TooManySegments = 2,
        BeginIsNoAddress = 3,
        EndIsNoAddress = 4,
    };
    Q_ENUM(RangeError)

    explicit AddressTools(QObject *parent = nullptr) : QObject(parent) {}

    /// True for an IPv4 address: four decimal octets of one to three digits, each 0 to 255.
    Q_INVOKABLE [[nodiscard]] bool isLegalAddress(const QString &text) const;

    /// Whether the text is a valid address (or subnet mask) or the start of one, for input that is being
    /// typed. Spaces at both ends are ignored. True for an empty text.
    Q_INVOKABLE [[nodiscard]] bool mayBecomeAddress(const QString &text) const;
    Q_INVOKABLE [[nodiscard]] bool mayBecomeMask(const QString &text) const;

    /// The address as a 32-bit number, first octet highest; 0 if `text` is not an address. A double, because
    /// QML's int is signed.
    Q_INVOKABLE [[nodiscard]] double toNumber(const QString &text) const;

    /// Whether the text is a subnet mask: ones from the left, then zeros, at least one of each.
    Q_INVOKABLE [[nodiscard]] bool isLegalMask(const QString &text) const;

    /// The gateway after an edit of an address from `before` to `after`: changed octets 1 to 3 are copied to
    /// the gateway, a changed octet 4 sets its last octet to "1". Missing octets of the gateway are set in
    /// the same way. The texts may be incomplete. The gateway is returned unchanged if `after` cannot become
    /// an address or if one of both has more than four octets.
    Q_INVOKABLE [[nodiscard]] QString gatewayAfterEdit(const QString &before, const QString &after,
                                                       const QString &gateway) const;

    /// The URL of a device's web page: the address of `ipport` ("address:port") with `webPort`. HTTPS if
    /// `encrypted` or if `webPort` is 443. Empty if `ipport` has no IP address or `webPort` is not 1 to
    /// 65535.
    Q_INVOKABLE [[nodiscard]] QString webPage(const QString &ipport, int webPort, bool encrypted) const;

    /// An address without leading zeros; any other text is returned unchanged.
    Q_INVOKABLE [[nodiscard]] QString plainAddress(const QString &text) const;

    /// Checks the bounds of a search range.
    Q_INVOKABLE [[nodiscard]] RangeError searchRangeError(const QString &begin, const QString &end) const;
};
