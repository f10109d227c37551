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

/// Writes the accepted passwords to the favourites in `folder`: a favourite with the same address, port and
/// account and another password gets the accepted one. Other favourites are not written. An empty password is
/// ignored. Favourites of devices behind NAT are not changed, since the rows of these devices contain a local
/// port. A file that cannot be written keeps its password, and the failure is logged. May run on any thread
/// and waits for the disk.
void renewFavouritePasswords(const QString &folder, const QList<AcceptedPassword> &accepted);
