#pragma once

#include <QObject>

/// Checks and arithmetic of IPv4 addresses and masks for QML. Stateless; used on the main thread.
class AddressTools : public QObject
{
    Q_OBJECT
public:
    /// Error of a search range; the values of SearchRangeError (see there) for QML.
    enum RangeError
    {
        NoFault = 0,
        BeginAboveEnd = 1,
        TooManySegments = 2, ///< octet 1 or 2 of the bounds differs, or octets 3 differ by more than 16
        BeginIsNoAddress = 3,
        EndIsNoAddress = 4,
    };
    Q_ENUM(RangeError)

    explicit AddressTools(QObject *parent = nullptr) : QObject(parent) {}

    /// Whether the text is an IPv4 address: four decimal octets of one to three digits, each 0 to 255,
    /// without spaces.
    Q_INVOKABLE [[nodiscard]] bool isLegalAddress(const QString &text) const;

    /// Whether the text is an IPv4 address or the start of one, for input that is being typed. Spaces at both
    /// ends are ignored. True for an empty text.
    Q_INVOKABLE [[nodiscard]] bool mayBecomeAddress(const QString &text) const;
    /// Same for a subnet mask.
    Q_INVOKABLE [[nodiscard]] bool mayBecomeMask(const QString &text) const;

    /// The IPv4 address as a 32-bit number, first octet highest; 0 if `text` is not an address. A double,
    /// because QML's int is signed.
    Q_INVOKABLE [[nodiscard]] double toNumber(const QString &text) const;

    /// Whether the text is a subnet mask in dotted notation: one bits from the left, then zero bits, at least
    /// one of each.
    Q_INVOKABLE [[nodiscard]] bool isLegalMask(const QString &text) const;

    /// The gateway for a dialog in which the user has edited the address from `before` to `after`. Each of
    /// the octets 1 to 3 that has changed is copied to the gateway. If octet 4 has changed, octet 4 of the
    /// gateway becomes "1", or empty if it is empty in `after`. Octets that the gateway does not have are
    /// appended in the same way. The three texts may be incomplete. The gateway is returned unchanged if
    /// `after` contains a text that is not an octet, or if `after` or the gateway has more than four octets.
    Q_INVOKABLE [[nodiscard]] QString gatewayAfterEdit(const QString &before, const QString &after,
                                                       const QString &gateway) const;

    /// The URL of a device's web page: the address of `ipport` ("address:port", IPv4 or IPv6) with `webPort`.
    /// The scheme is "https" if `encrypted` is true or `webPort` is 443, otherwise "http". Empty if `ipport`
    /// has no IP address or `webPort` is not 1 to 65535.
    Q_INVOKABLE [[nodiscard]] QString webPage(const QString &ipport, int webPort, bool encrypted) const;

    /// An IPv4 address without leading zeros in its octets. Any other text is returned unchanged.
    Q_INVOKABLE [[nodiscard]] QString plainAddress(const QString &text) const;

    /// The first error of a search range of two dotted IPv4 addresses: an invalid begin, an invalid end, the
    /// wrong order, or too many segments. NoFault if there is none.
    Q_INVOKABLE [[nodiscard]] RangeError searchRangeError(const QString &begin, const QString &end) const;
};
