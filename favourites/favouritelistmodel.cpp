#include "favourites/favouritelistmodel.h"

#include "favourites/author.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace {

enum Role
{
    CheckedRole = Qt::UserRole,
    ConflictRole,
    IdentityRole,
    FirstKeyRole, ///< from here on: rowKeys, in their order
};

constexpr std::array rowKeys = {"num",      "type", "ip",       "port",  "ipport",
                                "username", "note", "progress", "words", "fileName"};

/// A value for display: one line of limited length, since a file may contain any text.
QString shownText(const QString &value)
{
    constexpr qsizetype longest = 200;
    return value.left(longest).simplified();
}

} // namespace

FavouriteListModel::FavouriteListModel(QObject *parent) : QAbstractListModel(parent) {}

int FavouriteListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant FavouriteListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case CheckedRole:
        return at(index.row()).checked;
    case ConflictRole:
        return false;
    case IdentityRole:
        return at(index.row()).fileName;
    default:
        break;
    }
    const int key = role - FirstKeyRole;
    return key >= 0 && key < static_cast<int>(rowKeys.size())
               ? get(index.row()).value(QLatin1String(rowKeys[static_cast<std::size_t>(key)]))
               : QVariant();
}

QHash<int, QByteArray> FavouriteListModel::roleNames() const
{
    QHash<int, QByteArray> names = {
        {CheckedRole, "checked"}, {ConflictRole, "conflict"}, {IdentityRole, "identity"}};
    for (std::size_t key = 0; key < rowKeys.size(); ++key)
        names.insert(FirstKeyRole + static_cast<int>(key), rowKeys[key]);
    return names;
}

void FavouriteListModel::setSearchText(const QString &searchText)
{
    if (std::exchange(m_searchText, searchText) == searchText)
        return;
    Q_EMIT searchTextChanged();
    show();
}

int FavouriteListModel::checkedCount() const
{
    return static_cast<int>(std::count_if(m_shown.cbegin(), m_shown.cend(), [this](qsizetype place) {
        return m_favourites.at(place).checked;
    }));
}

Qt::CheckState FavouriteListModel::checkState() const
{
    const int checked = checkedCount();
    if (checked == 0)
        return Qt::Unchecked;
    return checked == rowCount() ? Qt::Checked : Qt::PartiallyChecked;
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
            .words = {}};
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
            favourite.words = known->words;
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
    for (qsizetype place = 0; place < m_favourites.size(); ++place) {
        if (isShown(m_favourites.at(place)))
            m_shown.append(place);
    }
    endResetModel();
    Q_EMIT countChanged();
    Q_EMIT checkedCountChanged();
}

void FavouriteListModel::setRangeChecked(int first, int last, bool checked)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    for (int row = first; row <= last; ++row)
        m_favourites[m_shown.at(row)].checked = checked;
    Q_EMIT dataChanged(index(first), index(last));
    Q_EMIT checkedCountChanged();
}

void FavouriteListModel::setAllChecked(bool checked)
{
    setRangeChecked(0, rowCount() - 1, checked);
}

void FavouriteListModel::takeResults(const QVariantList &results, const QString &wordsOfSuccess)
{
    QHash<QString, std::pair<Progress, QString>> progressOf;
    for (const QVariant &value : results) {
        const QVariantMap result = value.toMap();
        const bool isAdded = result.value(QStringLiteral("result")).toInt() == 0;
        progressOf.insert(result.value(QStringLiteral("identity")).toString(),
                          {isAdded ? Added : Failed,
                           isAdded ? wordsOfSuccess : result.value(QStringLiteral("words")).toString()});
    }
    noteProgress(progressOf);
}

void FavouriteListModel::setRunning(const QStringList &identities, const QString &words)
{
    QHash<QString, std::pair<Progress, QString>> progressOf;
    for (const QString &identity : identities)
        progressOf.insert(identity, {Running, words});
    noteProgress(progressOf);
}

void FavouriteListModel::noteProgress(const QHash<QString, std::pair<Progress, QString>> &progressOf)
{
    for (Favourite &favourite : m_favourites) {
        const auto noted = progressOf.constFind(favourite.fileName);
        if (noted == progressOf.cend())
            continue;
        std::tie(favourite.progress, favourite.words) = *noted;
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
        favourite.words.clear();
    }
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

QVariantMap FavouriteListModel::get(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const Favourite &favourite = at(row);
    return {
        {"checked", favourite.checked},
        {"fileName", favourite.fileName},
        {"num", QString::number(m_shown.at(row) + 1)},
        {"type", favourite.p2p ? QStringLiteral("P2P") : QStringLiteral("IP")},
        {"ip", shownText(favourite.address)},
        {"port", shownText(favourite.port)},
        {"ipport", shownText(favourite.address + QLatin1Char(':') + favourite.port)},
        {"username", shownText(favourite.account)},
        {"note", shownText(favourite.note)},
        {"progress", favourite.progress},
        {"words", favourite.words},
    };
}

QVariantMap FavouriteListModel::device(const QString &identity) const
{
    const qsizetype place = placeOf(identity);
    if (place < 0)
        return {};
    const Favourite &favourite = m_favourites.at(place);
    return {
        {"mode", favourite.p2p ? 1 : 0}, {"address", favourite.address}, {"port", favourite.port},
        {"account", favourite.account},  {"cipher", favourite.cipher},   {"note", favourite.note},
    };
}

QVariantList FavouriteListModel::devicesToAdd(const QStringList &identities) const
{
    const CAuthor author;
    QVariantList devices;
    for (const QString &identity : identities) {
        QVariantMap favourite = device(identity);
        favourite.insert(QStringLiteral("identity"), identity);
        favourite.insert(QStringLiteral("password"),
                         author.AesDecrypt(favourite.take(QStringLiteral("cipher")).toString()));
        devices.append(favourite);
    }
    return devices;
}

int FavouriteListModel::rowOf(const QString &identity) const
{
    return static_cast<int>(m_shown.indexOf(placeOf(identity)));
}

qsizetype FavouriteListModel::placeOf(const QString &identity) const
{
    const auto favourite =
        std::find_if(m_favourites.cbegin(), m_favourites.cend(),
                     [&identity](const Favourite &candidate) { return candidate.fileName == identity; });
    return favourite == m_favourites.cend() ? -1 : favourite - m_favourites.cbegin();
}

QStringList FavouriteListModel::checkedIdentities() const
{
    QStringList identities;
    for (const qsizetype place : m_shown) {
        if (m_favourites.at(place).checked)
            identities.append(m_favourites.at(place).fileName);
    }
    return identities;
}

QString FavouriteListModel::textOf(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    const QVariantMap values = get(row);
    QStringList cells;
    for (const char *key : {"type", "ip", "port", "username", "note"})
        cells.append(values.value(QLatin1String(key)).toString());
    return cells.join(QLatin1Char('\t'));
}
