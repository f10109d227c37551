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

    /// The address as a number, each octet shifted left by 8 × (3 − its position); 0 for text that is no
    /// address. A double, because the scene's integers are signed.
    Q_INVOKABLE [[nodiscard]] double toNumber(const QString &text) const;

    Q_INVOKABLE [[nodiscard]] RangeFault searchRangeFault(const QString &begin, const QString &end) const;
};
