// Favourites whose devices have taken a new password.
#pragma once

#include <QList>
#include <QString>

/// A device that has just accepted a password.
struct AcceptedPassword
{
    QString ipport; ///< "address:port" of its row
    QString account;
    QString password;
};

/// Writes the passwords into the favourites of a folder with the same address, port and account: the device
/// refuses the password that they hold. Favourites of devices behind NAT are left as they are, since their
/// rows hold a local port. Returns how many favourites were changed. A folder that does not exist holds none.
/// May run on any thread and waits for the disk.
int renewFavouritePasswords(const QString &folder, const QList<AcceptedPassword> &accepted);
