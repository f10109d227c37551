// The accounts of devices for the scene.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/models/dialogrows.h"
#include "favourites/accountstore.h"

#include <QStringList>

#include <functional>
#include <memory>

class CDeviceFactory;

/// Lists the accounts that the user keeps, changes them, and gives them to devices. The first row is the
/// default account of searches and batches, which the search settings change. Keys of a row: "name" (empty
/// for the default), "account", "deviceCount" and "isDefault". No row holds a password.
///
/// Devices are named by their rows or by address and port. Operations that change something return why they
/// failed, in the user's language; empty on success.
///
/// Lives on the scene's thread; a change blocks it until the disk has the file.
class AccountList : public DialogRows
{
    Q_OBJECT
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// The names of the accounts that no device has.
    Q_PROPERTY(QStringList unused READ unused NOTIFY changed)
public:
    /// What becomes of an account that devices have just taken.
    enum Keeping
    {
        ForDevices, ///< these devices are logged in to with it from now on
        AsDefault,  ///< it becomes the default account
        Unkept,     ///< it is used until the next search
    };
    Q_ENUM(Keeping)

    /// The default account, where it is kept.
    struct Defaults
    {
        std::function<DeviceAccount()> read;
        std::function<void(const DeviceAccount &account)> write;
    };

    /// `factory` lives longer than this.
    AccountList(CDeviceFactory &factory, std::shared_ptr<AccountStore> store, Defaults defaults,
                QObject *parent = nullptr);

    /// The folder of favourites that keepNew() writes new passwords into; none without it.
    void setFavourites(const QString &folder) { m_favourites = folder; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QString problem() const { return m_store->problem(); }
    [[nodiscard]] QStringList unused() const;

    /// Reads the default account again, which the search settings may have changed.
    Q_INVOKABLE void load();

    /// Adds an account, or changes the one that was called `before`. An empty password leaves that of an
    /// account that is changed.
    Q_INVOKABLE QString put(const QString &before, const QString &name, const QString &account,
                            const QString &password);
    Q_INVOKABLE QString remove(const QString &name);
    Q_INVOKABLE QString removeUnused();

    /// The row of the account of this name, -1 when there is none.
    Q_INVOKABLE [[nodiscard]] int rowOfName(const QString &name) const;

    /// The row of the account that a device is logged in to with; -1 when its row in the list of devices
    /// holds one that is not kept.
    Q_INVOKABLE [[nodiscard]] int rowOfDevice(const QString &device) const;

    /// Gives the account of this name to devices; the default one for an empty name. A device without MAC and
    /// UUID has it until the next search only.
    Q_INVOKABLE QString select(const QStringList &devices, const QString &name);

    /// How many of these devices have neither MAC nor UUID.
    Q_INVOKABLE [[nodiscard]] int countUnidentified(const QStringList &devices) const;

    /// Keeps the accounts that the rows of these devices hold since the devices have taken them. Where they
    /// are not to be kept, an account that was kept for the devices before goes: they refuse it. Their
    /// favourites get the new passwords in either case.
    Q_INVOKABLE QString keepNew(const QStringList &devices, AccountList::Keeping keeping);

    /// Keeps an account that a device has accepted for this device.
    Q_INVOKABLE QString keep(const QString &device, const QString &account, const QString &password);

Q_SIGNALS:
    void changed();

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    struct Device
    {
        QString name; ///< of its row
        QString ipport;
        QStringList identities;
        DeviceAccount own; ///< that the row holds
    };

    [[nodiscard]] Device deviceOf(const QString &name) const;
    [[nodiscard]] QList<Device> devicesOf(const QStringList &names) const;
    [[nodiscard]] static QList<AccountStore::Device> identitiesOf(const QList<Device> &devices);
    void setRowAccount(const Device &device, const DeviceAccount &account);
    void renewFavourites(const QList<Device> &devices) const;
    void keepForDevices(const QList<Device> &devices, QString &failure);

    CDeviceFactory &m_factory;
    const std::shared_ptr<AccountStore> m_store;
    const Defaults m_defaults;
    QString m_favourites; ///< the folder; empty for none
    DeviceAccount m_default;
    QList<StoredAccount> m_accounts;
    QHash<QString, int> m_deviceCounts; ///< by the name of the account
};
