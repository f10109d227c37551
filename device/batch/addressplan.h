// Preview of a batch of address changes.
#pragma once

#include "device/batch/batchpreview.h"

#include <QHash>
#include <QSet>

#include <cstdint>
#include <optional>
#include <utility>

/// Computes the new addresses of a batch of address changes; nothing is changed by it. The first checked row
/// gets the start address, and each further checked row the next higher address, also after a row that will
/// be skipped; with `sameAddress`, all rows get the start address; with `dhcp`, each device uses DHCP.
/// Addresses and mask are dotted IPv4 texts, which may be invalid while the user types. Lives on the main
/// thread.
///
/// "action" of a row is its new address, or "DHCP". It is empty if the row is unchecked, if the device will
/// be skipped, and without DHCP if the start address is invalid. The additional key "issue" is an Issue: a
/// device with NotChanged is skipped, the others are warnings. TakenByOther and TakenInBatch set the row's
/// conflict role.
class AddressPlan : public BatchPreview
{
    Q_OBJECT
    Q_PROPERTY(QString startAddress READ startAddress WRITE setStartAddress NOTIFY judged)
    Q_PROPERTY(QString mask READ mask WRITE setMask NOTIFY judged)
    Q_PROPERTY(QString gateway READ gateway WRITE setGateway NOTIFY judged)
    Q_PROPERTY(bool gatewayOutside READ isGatewayOutside NOTIFY judged)
    Q_PROPERTY(bool sameAddress READ sameAddress WRITE setSameAddress NOTIFY judged)
    Q_PROPERTY(bool dhcp READ dhcp WRITE setDhcp NOTIFY judged)
public:
    /// The problem of a new address, the first that applies. With DHCP only NotChanged is possible.
    enum Issue
    {
        NoIssue,
        NotChanged,      ///< the address of the device cannot be changed; "note" has the reason
        TakenByOther,    ///< in use by a device that keeps its address
        TakenInBatch,    ///< planned for several devices of the batch
        IsGateway,       ///< equal to the gateway
        OutsideSubnet,   ///< not in the subnet of the start address; only with a valid mask
        NoDeviceAddress, ///< network or broadcast address of the subnet; only with a valid mask
    };
    Q_ENUM(Issue)

    explicit AddressPlan(QObject *parent = nullptr);

    [[nodiscard]] QString startAddress() const { return m_startAddress; }
    void setStartAddress(const QString &startAddress);
    [[nodiscard]] QString mask() const { return m_mask; }
    void setMask(const QString &mask);
    [[nodiscard]] QString gateway() const { return m_gateway; }
    void setGateway(const QString &gateway);
    [[nodiscard]] bool sameAddress() const { return m_sameAddress; }
    void setSameAddress(bool sameAddress);
    [[nodiscard]] bool dhcp() const { return m_dhcp; }
    void setDhcp(bool dhcp);

    /// Whether the gateway is outside the subnet of the start address; false while start address, mask or
    /// gateway is invalid.
    [[nodiscard]] bool isGatewayOutside() const;

    /// The new address of a row if `dhcp` is off, also of a device that will be skipped. Empty if `row` is
    /// out of range or not checked, or the start address is invalid.
    Q_INVOKABLE [[nodiscard]] QString addressOf(int row) const;

    /// addressOf() for the checked rows, in the order of checkedIdentities().
    Q_INVOKABLE [[nodiscard]] QStringList addresses() const;

    /// The listed device that already has the address of addressOf() and is not changed by the batch: its
    /// model and MAC, or its address and port if it reports neither. Empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString otherDeviceAt(int row) const;

protected:
    void prepare() override;
    [[nodiscard]] QString hindranceOf(int row) const override;
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    [[nodiscard]] std::optional<std::uint32_t> numberOf(int row) const;
    [[nodiscard]] Issue issueOf(int row) const;
    [[nodiscard]] static QString textOf(Issue issue);

    template<typename Value>
    void change(Value &member, const Value &value)
    {
        if (std::exchange(member, value) != value)
            rejudge();
    }

    QString m_startAddress;
    QString m_mask;
    QString m_gateway;
    bool m_sameAddress = false;
    bool m_dhcp = false;

    QList<std::optional<std::uint32_t>> m_numbers; ///< new addresses by row; nullopt if not checked
    QHash<std::uint32_t, int> m_timesGiven;        ///< number of devices (not skipped) by new address
    QHash<std::uint32_t, QString> m_taken;         ///< descriptions of devices that keep their addresses
};
