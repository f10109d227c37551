// The list of favourites as the scene shows it.
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QVariantMap>

#include <utility>

/// Favourites of a folder with what the user does to them: ticks, the text filter, and how adding each one
/// went. Roles are "checked", "conflict" (always false: a favourite stands in no other's way), "identity"
/// (its file name) and the keys of get(). Lives on the scene's thread; reads and writes no files.
class FavouriteListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY countChanged)
    Q_PROPERTY(int checkedCount READ checkedCount NOTIFY checkedCountChanged)
    Q_PROPERTY(Qt::CheckState checkState READ checkState NOTIFY checkedCountChanged)
public:
    /// How adding a favourite to the device list went.
    enum Progress
    {
        Untried,
        Running,
        Added,
        Failed,
    };
    Q_ENUM(Progress)

    explicit FavouriteListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &searchText);
    [[nodiscard]] int totalCount() const { return static_cast<int>(m_favourites.size()); } ///< also hidden
    [[nodiscard]] int checkedCount() const;          ///< of the shown ones: hidden ones are not acted on
    [[nodiscard]] Qt::CheckState checkState() const; ///< of all shown rows, for the box in the head

    /// Takes the favourites of a folder as CAuthor lists them, numbered in that order. What is known of one
    /// that was there before is kept: its tick, and how adding it went.
    Q_INVOKABLE void load(const QVariantMap &files);

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// Notes how adding favourites went: maps of "identity", "result" (0 for a favourite that was added) and
    /// "words" for a failure. Takes the ticks away from those that were added.
    Q_INVOKABLE void takeResults(const QVariantList &results, const QString &wordsOfSuccess);

    /// These favourites are being added.
    Q_INVOKABLE void setRunning(const QStringList &identities, const QString &words);

    /// Forgets how adding went.
    Q_INVOKABLE void forgetProgress();

    /// What a shown row shows: "checked", "fileName", "num" (its number among all), "type" ("IP" or "P2P"),
    /// "ip", "port", "ipport", "username", "note", "progress" and "words". Empty when out of range. It holds
    /// no password, since what a table shows can be copied.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// A favourite, shown or not, for a login: "mode" (0 by address, 1 by P2P ID), "address", "port",
    /// "account", "cipher" (its enciphered password) and "note". Empty when there is none.
    Q_INVOKABLE [[nodiscard]] QVariantMap device(const QString &identity) const;

    /// Favourites to be added, as AddingBatches::addDevices() takes them: with "identity" and the deciphered
    /// "password" in place of "cipher".
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToAdd(const QStringList &identities) const;

    /// Position of the row with this identity, -1 when it is not shown.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// Identities of the ticked rows in the order shown.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

    /// The texts of a row, parted by tabs, for the clipboard.
    Q_INVOKABLE [[nodiscard]] QString textOf(int row) const;

Q_SIGNALS:
    void searchTextChanged();
    void countChanged();
    void checkedCountChanged();

private:
    struct Favourite
    {
        QString fileName;
        bool p2p = false;
        QString address;
        QString port;
        QString account;
        QString cipher;
        QString note;
        bool checked = false;
        Progress progress = Untried;
        QString words;
    };

    [[nodiscard]] static Favourite favouriteOf(const QString &fileName, const QStringList &values);
    [[nodiscard]] bool isShown(const Favourite &favourite) const;
    [[nodiscard]] const Favourite &at(int row) const { return m_favourites.at(m_shown.at(row)); }
    void noteProgress(const QHash<QString, std::pair<Progress, QString>> &progressOf); ///< and the words
    [[nodiscard]] qsizetype placeOf(const QString &identity) const;
    void show();

    QList<Favourite> m_favourites;
    QList<qsizetype> m_shown; ///< places in m_favourites
    QString m_searchText;
};
