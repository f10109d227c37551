// Which address each device of a batch will get, and what will be wrong with it.
#pragma once

#include "device/batch/batchpreview.h"

#include <QHash>
#include <QSet>

#include <cstdint>
#include <optional>
#include <utility>

/// The addresses of a batch: the k-th ticked device gets the start address plus k, as a 32-bit number, or all
/// get the start address, or each gets one by DHCP. A mark says what will be wrong with an address; it
/// informs and changes no address.
///
/// A row is in conflict when its address collides. Its "action" is its new address, empty while the start
/// address is none. It also has "mark".
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
    enum Mark
    {
        Fine,
        NotChanged,      ///< the device will not take an address: its note says why
        TakenByOther,    ///< a device that keeps its address has this one
        TakenInBatch,    ///< another device of the batch gets it too
        IsGateway,       ///< the gateway has it
        OutsideSubnet,   ///< not in the subnet of the start address
        NoDeviceAddress, ///< the address of the subnet itself, or of all its devices
    };
    Q_ENUM(Mark)

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

    /// True when the gateway is not in the subnet of the start address; false while one of the texts is not
    /// valid.
    [[nodiscard]] bool isGatewayOutside() const;

    /// What the device in this place gets; empty when there is no such place, the device is not ticked, or
    /// there is no start address.
    Q_INVOKABLE [[nodiscard]] QString addressOf(int row) const;

    /// addressOf() of the ticked rows, in the order of checkedIdentities().
    Q_INVOKABLE [[nodiscard]] QStringList addresses() const;

    /// The device that has the address of this place, as the user knows it: model and MAC, or its address and
    /// port when it reports neither. Empty when no other device has it.
    Q_INVOKABLE [[nodiscard]] QString otherDeviceAt(int row) const;

protected:
    void prepare() override;
    [[nodiscard]] QString hindranceOf(int row) const override;
    [[nodiscard]] Judgement judgementOf(int row) const override;
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    [[nodiscard]] std::optional<std::uint32_t> numberOf(int row) const;
    [[nodiscard]] Mark markOf(int row) const;
    [[nodiscard]] static QString wordsOf(Mark mark);

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

    QList<std::optional<std::uint32_t>> m_numbers; ///< new addresses by row; none of unticked ones
    QHash<std::uint32_t, int> m_timesGiven;        ///< to devices that take one
    QHash<std::uint32_t, QString> m_taken;         ///< devices that keep their addresses, by address
};
