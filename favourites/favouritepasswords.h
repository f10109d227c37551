// New passwords for favourites.
#pragma once

#include <QList>
#include <QString>

/// A device that has accepted a new password.
struct AcceptedPassword
{
    QString ipport; ///< "address:port" of its row
    QString account;
    QString password;
};

/// Writes the passwords to the favourites of a folder with the same address, port and account, if they have
/// another password. Empty passwords are ignored. Favourites of devices behind NAT are not changed, since
/// their rows contain a local port. A file that cannot be written keeps its password, and the failure is
/// logged. May run on any thread and waits for the disk.
void renewFavouritePasswords(const QString &folder, const QList<AcceptedPassword> &accepted);
