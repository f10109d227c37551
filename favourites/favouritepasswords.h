// New passwords for favourites, the saved devices.
#pragma once

#include <QList>
#include <QString>

/// A device that has accepted a new password.
struct AcceptedPassword
{
    QString ipport;   ///< "address:port" of its row in the device list
    QString account;  ///< user name
    QString password; ///< not encrypted
};

/// Writes the accepted passwords to the favourites in `folder` (a local path): a favourite with the same
/// address, port and account and another password gets the accepted one. Other favourites are not written. An
/// empty password is ignored. Favourites of devices behind NAT are not changed, since the rows of these
/// devices contain a local port. A file that cannot be written keeps its password, and the failure is logged.
/// A missing folder is not an error. May run on any thread, but only on the main thread while
/// CAuthor::setVault() is in use. Waits for the disk.
void renewFavouritePasswords(const QString &folder, const QList<AcceptedPassword> &accepted);
