#pragma once

#include <QObject>

/// The scene's way to address checks and arithmetic.
class AddressTools : public QObject
{
    Q_OBJECT
public:
    /// What is wrong with a search range; the values of SearchRangeFault for the scene.
    enum RangeFault
    {
        NoFault = 0,
        BeginAboveEnd = 1,
        TooManySegments = 2,
        BeginIsNoAddress = 3,
        EndIsNoAddress = 4,
    };
    Q_ENUM(RangeFault)

    explicit AddressTools(QObject *parent = nullptr) : QObject(parent) {}

    /// True for four decimal octets, each 0 to 255.
    Q_INVOKABLE [[nodiscard]] bool isLegalAddress(const QString &text) const;

    /// Whether an address, or a subnet mask, may begin like this: a text that is being typed is not wrong
    /// yet. Also true for a whole one, and for an empty text.
    Q_INVOKABLE [[nodiscard]] bool mayBecomeAddress(const QString &text) const;
    Q_INVOKABLE [[nodiscard]] bool mayBecomeMask(const QString &text) const;

    /// The address as a number, each octet shifted left by 8 × (3 − its position); 0 for text that is no
    /// address. A double, because the scene's integers are signed.
    Q_INVOKABLE [[nodiscard]] double toNumber(const QString &text) const;

    /// True for a subnet mask: ones from the left, then zeros, and at least one of each.
    Q_INVOKABLE [[nodiscard]] bool isLegalMask(const QString &text) const;

    /// The gateway that follows an edit of an address: octets 1 to 3 that the edit changed are copied into
    /// it, and a change of octet 4 makes its last octet "1". Octets that the gateway lacks are taken from the
    /// address. The texts may be unfinished.
    Q_INVOKABLE [[nodiscard]] QString gatewayAfterEdit(const QString &before, const QString &after,
                                                       const QString &gateway) const;

    /// The address of a device's web page, from "address:port" of the device and the port of its web server;
    /// `encrypted` when it is known to be, or by the port for it. Empty when `ipport` or the port is none.
    Q_INVOKABLE [[nodiscard]] QString webPage(const QString &ipport, int webPort, bool encrypted) const;

    /// An address without leading zeros; the text as it is when it is no address.
    Q_INVOKABLE [[nodiscard]] QString plainAddress(const QString &text) const;

    Q_INVOKABLE [[nodiscard]] RangeFault searchRangeFault(const QString &begin, const QString &end) const;
};
