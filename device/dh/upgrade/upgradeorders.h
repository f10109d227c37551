// What is to be upgraded, by the rows of devices and by the lines of documents.
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

/// Makes orders, and keeps what a document has given for them: an upgrade that is started again is done as
/// its document wants it. On the scene's thread.
class UpgradeOrders
{
public:
    UpgradeOrders(std::shared_ptr<DeviceStore> store, const DeviceLogins &logins);

    [[nodiscard]] UpgradeOrder orderOf(const QJsonObject &row) const;

    /// `row` is empty if no device of the list has the line's address.
    [[nodiscard]] UpgradeOrder orderOf(const UpgradeDocumentLine &line, const QJsonObject &row) const;

    /// The order of a row's name, or of a line without a row by its address and port.
    [[nodiscard]] std::optional<UpgradeOrder> orderNamed(const QString &name) const;

    /// Keeps the order of a line.
    void keep(const UpgradeOrder &order, const QJsonObject &row);

private:
    /// What a document has logged in to a device with, and what would have been used without it.
    struct DocumentAccount
    {
        DeviceAccount used;
        DeviceAccount usual;
    };

    /// The account of a document again, unless the device has refused it or the user has given another since.
    [[nodiscard]] DeviceAccount accountOf(const QJsonObject &row) const;

    const std::shared_ptr<DeviceStore> m_store;
    const DeviceLogins &m_logins;
    QHash<QString, DocumentAccount> m_documentAccounts; ///< by the name of the row
    QHash<QString, UpgradeOrder> m_rowless;             ///< of lines without a row, by address and port
};
