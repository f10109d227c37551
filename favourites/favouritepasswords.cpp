#include "favourites/favouritepasswords.h"

#include "favourites/author.h"

#include <QDir>
#include <QHash>

namespace {

QString favouriteKey(const QString &ipport, const QString &account)
{
    return ipport + QLatin1Char('\n') + account;
}

} // namespace

void renewFavouritePasswords(const QString &folder, const QList<AcceptedPassword> &accepted)
{
    if (folder.isEmpty() || accepted.isEmpty() || !QDir(folder).exists())
        return;
    QHash<QString, QString> passwords;
    for (const AcceptedPassword &device : accepted) {
        if (!device.password.isEmpty())
            passwords.insert(favouriteKey(device.ipport, device.account), device.password);
    }
    const CAuthor author;
    const QVariantMap favourites = author.readJsonFilesFromFolder(folder);
    constexpr qsizetype valueCount = 6;
    for (const QVariant &favourite : favourites) {
        const QStringList values = favourite.toStringList();
        if (values.size() != valueCount || values.at(0) != QStringLiteral("0"))
            continue;
        const QString ipport = values.at(1) + QLatin1Char(':') + values.at(2);
        const auto password = passwords.constFind(favouriteKey(ipport, values.at(3)));
        if (password == passwords.cend())
            continue;
        const QString cipher = author.AesEncrypt(*password);
        if (cipher == values.at(4))
            continue;
        author.saveTextAsJson(folder, values.at(0), values.at(1), values.at(2), values.at(3), cipher,
                              values.at(5));
    }
}
