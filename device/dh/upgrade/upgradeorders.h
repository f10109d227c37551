// Creates the orders (device, account, file) of upgrades.
#pragma once

#include "device/accounts/accountchoice.h"
#include "device/dh/upgrade/upgradedocument.h"
#include "device/dh/upgrade/upgradework.h"

#include <QHash>
#include <QJsonObject>

#include <memory>
#include <optional>

class DeviceLogins;
class DeviceStore;

/// Makes upgrade orders from rows and document lines. Remembers the accounts and devices of document lines
/// in memory, so that a repeated upgrade uses them again. Lives on the main thread.
class UpgradeOrders
{
public:
    /// `logins` must outlive this object.
    UpgradeOrders(std::shared_ptr<DeviceStore> store, const DeviceLogins &logins);

    /// Order for a row, with the file in the row. The account is that of an earlier document line for the
    /// row, if there is one, the last upgrade was not refused because of it, and DeviceLogins::accountOf() is
    /// the same as then. Otherwise it is that of DeviceLogins::accountOf().
    [[nodiscard]] UpgradeOrder orderOf(const QJsonObject &row) const;

    /// Order for a document line, with its file. `row` is the row with its address; empty if there is none.
    /// A line without a user name gets the one that orderOf(row) would use without documents, and, if its
    /// password is empty, too, that password.
    [[nodiscard]] UpgradeOrder orderOf(const UpgradeDocumentLine &line, const QJsonObject &row) const;

    /// Order for a row by name, or for a remembered line without a row by address and port; nullopt if
    /// neither is known.
    [[nodiscard]] std::optional<UpgradeOrder> orderNamed(const QString &name) const;

    /// Remembers the order of a document line. `row` is the row of orderOf().
    void keep(const UpgradeOrder &order, const QJsonObject &row);

private:
    /// Account of a document line, and the account that would be used without it.
    struct DocumentAccount
    {
        DeviceAccount used;
        DeviceAccount usual;
    };

    /// The remembered account of a document, unless the device has refused it or the usual account has
    /// changed since; otherwise the usual account.
    [[nodiscard]] DeviceAccount accountOf(const QJsonObject &row) const;

    const std::shared_ptr<DeviceStore> m_store;
    const DeviceLogins &m_logins;
    QHash<QString, DocumentAccount> m_documentAccounts; ///< by row name
    QHash<QString, UpgradeOrder> m_rowless;             ///< of lines without a row, by address and port
};
