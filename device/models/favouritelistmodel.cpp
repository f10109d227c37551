#include "device/models/favouritelistmodel.h"

#include "device/models/modelkeys.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"
#include "favourites/author.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace {

/// A value for display: one line of limited length, since a file may contain any text.
QString shownText(const QString &value)
{
    constexpr qsizetype longest = 200;
    return value.left(longest).simplified();
}

} // namespace

FavouriteListModel::FavouriteListModel(QObject *parent) : CheckableRows(parent) {}

int FavouriteListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

void FavouriteListModel::setSearchText(const QString &searchText)
{
    if (std::exchange(m_searchText, searchText) == searchText)
        return;
    Q_EMIT searchTextChanged();
    show();
}

FavouriteListModel::Favourite FavouriteListModel::favouriteOf(const QString &fileName,
                                                              const QStringList &values)
{
    bool isNumber = false;
    const bool byAddress = values.value(0).toInt(&isNumber) == 0 && isNumber;
    return {.fileName = fileName,
            .p2p = !byAddress,
            .address = values.value(1),
            .port = values.value(2),
            .account = values.value(3),
            .cipher = values.value(4),
            .note = values.value(5),
            .checked = false,
            .progress = Untried,
            .message = {}};
}

void FavouriteListModel::load(const QVariantMap &files)
{
    QHash<QString, Favourite> before;
    for (const Favourite &favourite : std::as_const(m_favourites))
        before.insert(favourite.fileName, favourite);

    QList<Favourite> favourites;
    favourites.reserve(files.size());
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        Favourite favourite = favouriteOf(file.key(), file.value().toStringList());
        if (const auto known = before.constFind(file.key()); known != before.cend()) {
            favourite.checked = known->checked;
            favourite.progress = known->progress;
            favourite.message = known->message;
        }
        favourites.append(std::move(favourite));
    }
    m_favourites = std::move(favourites);
    show();
}

bool FavouriteListModel::isShown(const Favourite &favourite) const
{
    const QString text = m_searchText.trimmed();
    const auto holdsText = [&text](const QString &value) {
        return value.contains(text, Qt::CaseInsensitive);
    };
    return holdsText(favourite.address) || holdsText(favourite.port) || holdsText(favourite.account) ||
           holdsText(favourite.note) ||
           holdsText(favourite.p2p ? QStringLiteral("P2P") : QStringLiteral("IP"));
}

void FavouriteListModel::show()
{
    beginResetModel();
    m_shown.clear();
    for (qsizetype index = 0; index < m_favourites.size(); ++index) {
        if (isShown(m_favourites.at(index)))
            m_shown.append(index);
    }
    endResetModel();
    Q_EMIT rowsChanged();
    Q_EMIT checkedCountChanged();
}

void FavouriteListModel::takeResults(const QVariantList &results, const QString &successMessage)
{
    QHash<QString, std::pair<Progress, QString>> progressOf;
    for (const QVariant &value : results) {
        const QVariantMap result = value.toMap();
        const bool isAdded = result.value(ResultKey::result).toInt() == 0;
        progressOf.insert(result.value(ResultKey::identity).toString(),
                          {isAdded ? Added : Failed,
                           isAdded ? successMessage : result.value(ResultKey::message).toString()});
    }
    noteProgress(progressOf);
}

void FavouriteListModel::setRunning(const QStringList &identities, const QString &message)
{
    QHash<QString, std::pair<Progress, QString>> progressOf;
    for (const QString &identity : identities)
        progressOf.insert(identity, {Running, message});
    noteProgress(progressOf);
}

void FavouriteListModel::noteProgress(const QHash<QString, std::pair<Progress, QString>> &progressOf)
{
    for (Favourite &favourite : m_favourites) {
        const auto noted = progressOf.constFind(favourite.fileName);
        if (noted == progressOf.cend())
            continue;
        std::tie(favourite.progress, favourite.message) = *noted;
        favourite.checked = favourite.checked && favourite.progress != Added;
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    Q_EMIT checkedCountChanged();
}

void FavouriteListModel::forgetProgress()
{
    for (Favourite &favourite : m_favourites) {
        favourite.progress = Untried;
        favourite.message.clear();
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QVariantMap FavouriteListModel::valuesOf(int row) const
{
    const Favourite &favourite = at(row);
    return {
        {DeviceRowKey::checked, favourite.checked},
        {RowKey::identity, favourite.fileName},
        {RowKey::fileName, favourite.fileName},
        {DeviceRowKey::num, QString::number(m_shown.at(row) + 1)},
        {DeviceRowKey::type, favourite.p2p ? QStringLiteral("P2P") : QStringLiteral("IP")},
        {RowKey::ip, shownText(favourite.address)},
        {RowKey::port, shownText(favourite.port)},
        {DeviceRowKey::ipport, shownText(favourite.address + QLatin1Char(':') + favourite.port)},
        {DeviceRowKey::username, shownText(favourite.account)},
        {RowKey::note, shownText(favourite.note)},
        {RowKey::progress, favourite.progress},
        {RowKey::message, favourite.message},
    };
}

QVariantMap FavouriteListModel::device(const QString &identity) const
{
    const qsizetype index = indexOf(identity);
    if (index < 0)
        return {};
    const Favourite &favourite = m_favourites.at(index);
    return {
        {DeviceToAddKey::mode, favourite.p2p ? 1 : 0},
        {DeviceToAddKey::address, favourite.address},
        {DeviceToAddKey::port, favourite.port},
        {DeviceToAddKey::account, favourite.account},
        {RowKey::cipher, favourite.cipher},
        {RowKey::note, favourite.note},
    };
}

QVariantList FavouriteListModel::devicesToAdd(const QStringList &identities) const
{
    const CAuthor author;
    QVariantList devices;
    for (const QString &identity : identities) {
        QVariantMap favourite = device(identity);
        if (favourite.isEmpty())
            continue;
        favourite.insert(DeviceToAddKey::identity, identity);
        favourite.insert(DeviceToAddKey::password,
                         author.AesDecrypt(favourite.take(RowKey::cipher).toString()));
        devices.append(favourite);
    }
    return devices;
}

qsizetype FavouriteListModel::indexOf(const QString &identity) const
{
    const auto favourite =
        std::find_if(m_favourites.cbegin(), m_favourites.cend(),
                     [&identity](const Favourite &candidate) { return candidate.fileName == identity; });
    return favourite == m_favourites.cend() ? -1 : favourite - m_favourites.cbegin();
}

QString FavouriteListModel::textOf(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const QVariantMap values = get(row);
    QStringList cells;
    for (const QLatin1StringView key :
         {DeviceRowKey::type, RowKey::ip, RowKey::port, DeviceRowKey::username, RowKey::note})
        cells.append(values.value(key).toString());
    return cells.join(QLatin1Char('\t'));
}
