// The list of stored device accounts for QML.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/models/dialogrows.h"
#include "favourites/accountstore.h"

#include <QStringList>

#include <functional>
#include <memory>

class CDeviceFactory;

/// Lists, changes and assigns the stored accounts. Row 0 is the default account, which searches and batches
/// use. The user changes the default account in the search settings; put() and remove() do not change it.
/// Keys of a row: "identity", "name" (empty for the default account), "account" (the user name),
/// "deviceCount" (int: the number of devices to which the account is assigned; 0 for the default account)
/// and "isDefault" (bool). A row contains no password.
///
/// A device is named by the name of its row (see rowName()), or by its address and port. Functions that
/// return a QString return an error message for the user, which is empty on success. After an error, the
/// store is unchanged unless the function says otherwise. A device without a row is ignored in lists.
///
/// Lives on the main thread. A change blocks that thread until the file is written, and calls load().
class AccountList : public DialogRows
{
    Q_OBJECT
    /// Why the file of the accounts could not be read, in the user's language; empty if it was, and after a
    /// successful change.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// The names of the stored accounts that were assigned to no device at the last load().
    Q_PROPERTY(QStringList unused READ unused NOTIFY changed)
public:
    /// The treatment in keepNew() of an account that devices have accepted.
    enum Keeping
    {
        ForDevices, ///< stored for these devices
        AsDefault,  ///< stored as the default account
        Unkept,     ///< not stored: the account stays in the rows, which the next search removes
    };
    Q_ENUM(Keeping)

    /// Functions that read and write the default account. They are called on the main thread.
    struct Defaults
    {
        std::function<DeviceAccount()> read;
        std::function<void(const DeviceAccount &account)> write;
    };

    /// `factory` must outlive this object. `store` must not be null. Calls load().
    AccountList(CDeviceFactory &factory, std::shared_ptr<AccountStore> store, Defaults defaults,
                QObject *parent = nullptr);

    /// The folder of the favourites whose passwords keepNew() updates. Empty: no favourites.
    void setFavourites(const QString &folder) { m_favourites = folder; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QString problem() const { return m_store->problem(); }
    [[nodiscard]] QStringList unused() const;

    /// Reads the store and the default account again.
    Q_INVOKABLE void load();

    /// Changes the account with the name `before`, or adds an account if there is none with that name. `name`
    /// is the new name, and `account` the user name. The devices of a changed account keep it. An empty
    /// password keeps the password of a changed account. Error if another account has the new name, or if
    /// name, user name or password is empty or too long.
    Q_INVOKABLE QString put(const QString &before, const QString &name, const QString &account,
                            const QString &password);
    /// Removes an account. Its devices use the default account from then on. Success if there is no account
    /// with this name.
    Q_INVOKABLE QString remove(const QString &name);
    /// Calls load() and removes the accounts of `unused`. Ends at the first error; the accounts that were
    /// removed before it stay removed.
    Q_INVOKABLE QString removeUnused();

    /// The row of the account with this name; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int rowOfName(const QString &name) const;

    /// The row of the account that is used for this device; 0 (the default account) also if the device has
    /// no row. -1 if the device's row contains an account, which is not one of the stored accounts then.
    Q_INVOKABLE [[nodiscard]] int rowOfDevice(const QString &device) const;

    /// Assigns the account with this name to the devices; an empty name is the default account. Removes the
    /// accounts from the rows of these devices. The assignment of a device without MAC and UUID cannot be
    /// stored: the account is written to its row instead, which the next search removes.
    Q_INVOKABLE QString select(const QStringList &devices, const QString &name);

    /// The number of these devices that have a row and neither MAC nor UUID.
    Q_INVOKABLE [[nodiscard]] int countUnidentified(const QStringList &devices) const;

    /// Stores or drops the accounts that the rows of these devices contain and that the devices have
    /// accepted:
    ///
    ///  - `ForDevices` stores the account of each device that has a MAC or UUID and a password in its row.
    ///    The row then has no account any more. After an error, the accounts before the error are stored.
    ///  - `AsDefault` and `Unkept` remove the assignments of these devices to stored accounts, which the
    ///    devices now refuse.
    ///  - `AsDefault` then makes the first account with a password the default account, and removes the
    ///    accounts from all rows of `devices`. Without such an account the default account and the rows are
    ///    unchanged.
    ///
    /// The passwords of the devices' favourites are updated in each case, also after an error.
    Q_INVOKABLE QString keepNew(const QStringList &devices, AccountList::Keeping keeping);

    /// Stores an account, which the device has accepted, for this device, and removes the account from its
    /// row. Error for a device without MAC and UUID, and for a device without a row.
    Q_INVOKABLE QString keep(const QString &device, const QString &account, const QString &password);

Q_SIGNALS:
    void changed(); ///< load() has replaced the rows

protected:
    [[nodiscard]] QVariantMap valuesOf(int row) const override;

private:
    struct Device
    {
        QString name; ///< of the device's row
        QString ipport;
        QStringList identities;
        DeviceAccount own; ///< the account in the row; empty if none
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
    QString m_favourites; ///< folder; empty: no favourites
    DeviceAccount m_default;
    QList<StoredAccount> m_accounts;
    QHash<QString, int> m_deviceCounts; ///< by account name
};
