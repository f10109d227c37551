// The list of stored device accounts for QML.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/models/dialogrows.h"
#include "favourites/accountstore.h"

#include <QStringList>

#include <functional>
#include <memory>

class CDeviceFactory;

/// Lists, changes and assigns the stored accounts. Row 0 is the default account of searches and batches,
/// which the search settings change. Keys of a row: "identity", "name" (empty for the default account),
/// "account" (the user name), "deviceCount" (int: assigned devices) and "isDefault" (bool). A row contains no
/// password.
///
/// A device is named by its row (see rowName()) or by address and port. Functions that return a QString
/// return an error message in the user's language, empty on success. Unknown devices in lists are ignored.
///
/// Lives on the main thread. A change blocks that thread until the file is written.
class AccountList : public DialogRows
{
    Q_OBJECT
    /// See AccountStore::problem().
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(int count READ rowCount NOTIFY changed)
    /// The names of the stored accounts that no device uses.
    Q_PROPERTY(QStringList unused READ unused NOTIFY changed)
public:
    /// What keepNew() does with an account that devices have accepted.
    enum Keeping
    {
        ForDevices, ///< stored for these devices
        AsDefault,  ///< stored as the default account
        Unkept,     ///< not stored: used until the next search
    };
    Q_ENUM(Keeping)

    /// Functions that read and write the default account.
    struct Defaults
    {
        std::function<DeviceAccount()> read;
        std::function<void(const DeviceAccount &account)> write;
    };

    /// `factory` must outlive this object.
    AccountList(CDeviceFactory &factory, std::shared_ptr<AccountStore> store, Defaults defaults,
                QObject *parent = nullptr);

    /// The folder of the favourites whose passwords keepNew() updates. Empty: no favourites.
    void setFavourites(const QString &folder) { m_favourites = folder; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QString problem() const { return m_store->problem(); }
    [[nodiscard]] QStringList unused() const;

    /// Reads the store and the default account again.
    Q_INVOKABLE void load();

    /// Adds an account, or changes the account with the name `before`. An empty password keeps the password
    /// of an account that is changed.
    Q_INVOKABLE QString put(const QString &before, const QString &name, const QString &account,
                            const QString &password);
    Q_INVOKABLE QString remove(const QString &name);
    /// Removes the accounts of `unused`. Ends at the first error.
    Q_INVOKABLE QString removeUnused();

    /// The row of the account with this name; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int rowOfName(const QString &name) const;

    /// The row of the account that is used for this device. -1 if the device's row holds an account itself,
    /// which is not stored.
    Q_INVOKABLE [[nodiscard]] int rowOfDevice(const QString &device) const;

    /// Assigns the account with this name to the devices; an empty name is the default account. A device
    /// without MAC and UUID uses it only until the next search.
    Q_INVOKABLE QString select(const QStringList &devices, const QString &name);

    /// The number of these devices that have neither MAC nor UUID.
    Q_INVOKABLE [[nodiscard]] int countUnidentified(const QStringList &devices) const;

    /// Handles the accounts that the rows of these devices hold and the devices have accepted. `ForDevices`
    /// stores them for the devices with MAC or UUID. `AsDefault` and `Unkept` remove the assignment of an
    /// older stored account, which the devices now refuse. `AsDefault` then stores the first account with a
    /// password as the default account. Accounts that are stored are removed from the rows. Updates the
    /// passwords of the devices' favourites in each case.
    Q_INVOKABLE QString keepNew(const QStringList &devices, AccountList::Keeping keeping);

    /// Stores an account, which the device has accepted, for this device. Error for a device without MAC and
    /// UUID.
    Q_INVOKABLE QString keep(const QString &device, const QString &account, const QString &password);

Q_SIGNALS:
    void changed();

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
