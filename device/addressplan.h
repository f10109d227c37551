// Which address each device of a batch will get, and what will be wrong with it.
#pragma once

#include "device/dialogrows.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QVariantList>

#include <cstdint>
#include <optional>

class CDeviceFactory;

/// The addresses of a batch, one row for each device in its order: the k-th gets the start address plus k, as
/// a 32-bit number, or all get the start address. A mark says what will be wrong with an address; it informs
/// and changes no address.
///
/// A row is in conflict when its address collides. Its values are "num", "name", "mac", "identity", "ipport",
/// "address" (the new one, empty while the start address is none) and "mark".
class AddressPlan : public DialogRows
{
    Q_OBJECT
    Q_MOC_INCLUDE("device/devicefactory.h")
    Q_PROPERTY(CDeviceFactory *deviceFactory READ deviceFactory WRITE setDeviceFactory NOTIFY planChanged)
    Q_PROPERTY(QString startAddress READ startAddress WRITE setStartAddress NOTIFY planChanged)
    Q_PROPERTY(QString mask READ mask WRITE setMask NOTIFY planChanged)
    Q_PROPERTY(QString gateway READ gateway WRITE setGateway NOTIFY planChanged)
    Q_PROPERTY(bool gatewayOutside READ isGatewayOutside NOTIFY planChanged)
    Q_PROPERTY(bool sameAddress READ sameAddress WRITE setSameAddress NOTIFY planChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY planChanged)
    Q_PROPERTY(int markedCount READ markedCount NOTIFY planChanged)
public:
    enum Mark
    {
        Fine,
        NotInitialised,  ///< the device has no password yet and will refuse
        TakenByOther,    ///< a device that keeps its address has this one
        TakenInBatch,    ///< another device of the batch gets it too
        OutsideSubnet,   ///< not in the subnet of the start address
        NoDeviceAddress, ///< the address of the subnet itself, or of all its devices
    };
    Q_ENUM(Mark)

    explicit AddressPlan(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    [[nodiscard]] CDeviceFactory *deviceFactory() const;
    void setDeviceFactory(CDeviceFactory *deviceFactory);
    [[nodiscard]] QString startAddress() const { return m_startAddress; }
    void setStartAddress(const QString &startAddress);
    [[nodiscard]] QString mask() const { return m_mask; }
    void setMask(const QString &mask);
    [[nodiscard]] QString gateway() const { return m_gateway; }
    void setGateway(const QString &gateway);
    [[nodiscard]] bool sameAddress() const { return m_sameAddress; }
    void setSameAddress(bool sameAddress);
    [[nodiscard]] int markedCount() const { return m_markedCount; }

    /// True when the gateway is not in the subnet of the start address; false while one of the texts is not
    /// valid.
    [[nodiscard]] bool isGatewayOutside() const;

    /// Takes the device rows of the batch in their order, and reads from the factory which addresses the
    /// devices outside of it have.
    Q_INVOKABLE void setDevices(const QVariantList &rows);

    /// What the device in this place gets; empty when there is no such place or no start address.
    Q_INVOKABLE [[nodiscard]] QString addressOf(int row) const;

    /// Names of the rows of the devices, and what each gets (see addressOf()), in their order.
    Q_INVOKABLE [[nodiscard]] QStringList identities() const;
    Q_INVOKABLE [[nodiscard]] QStringList addresses() const;

    /// The device that has the address of this place, as the user knows it: model and MAC, or its address and
    /// port when it reports neither. Empty when no other device has it.
    Q_INVOKABLE [[nodiscard]] QString otherDeviceAt(int row) const;

Q_SIGNALS:
    void planChanged();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isInConflict(int row) const override;

private:
    struct Row
    {
        QVariantMap values;
        bool initialised = true;
        std::uint32_t address = 0;
        Mark mark = Fine;
    };

    void plan();
    [[nodiscard]] Mark markOf(const Row &row, std::uint32_t start,
                              const QHash<std::uint32_t, int> &timesGiven) const;

    QPointer<CDeviceFactory> m_deviceFactory; ///< not owned; may be destroyed before the scene is
    QString m_startAddress;
    QString m_mask;
    QString m_gateway;
    bool m_sameAddress = false;

    QList<Row> m_rows;
    QHash<std::uint32_t, QString> m_taken; ///< devices that keep their addresses, by address
    bool m_planned = false;                ///< there is a start address
    int m_markedCount = 0;
};
