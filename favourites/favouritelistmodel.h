// The list of favourites for the scene.
#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QVariantMap>

#include <utility>

/// Favourites of a folder with their user interface state: check marks, the text filter, and the progress of
/// adding each one. Roles are "checked", "conflict" (always false: favourites cannot conflict), "identity"
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
    /// The progress of adding a favourite to the device list.
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
    [[nodiscard]] int checkedCount() const; ///< of the shown rows: actions do not apply to hidden ones
    [[nodiscard]] Qt::CheckState checkState() const; ///< of all shown rows, for the check box of the header

    /// Loads the favourites of a folder in the form and order of CAuthor. A favourite that was loaded before
    /// keeps its check mark and its progress.
    Q_INVOKABLE void load(const QVariantMap &files);

    Q_INVOKABLE void setRangeChecked(int first, int last, bool checked);
    Q_INVOKABLE void setAllChecked(bool checked);

    /// Sets the results of adding favourites: maps of "identity", "result" (0 for success) and "words" for a
    /// failure. Unchecks the added ones.
    Q_INVOKABLE void takeResults(const QVariantList &results, const QString &wordsOfSuccess);

    /// Marks these favourites as being added.
    Q_INVOKABLE void setRunning(const QStringList &identities, const QString &words);

    /// Clears the progress of all favourites.
    Q_INVOKABLE void forgetProgress();

    /// The displayed values of a row: "checked", "fileName", "num" (its number among all), "type" ("IP" or
    /// "P2P"), "ip", "port", "ipport", "username", "note", "progress" and "words". Empty when out of range.
    /// It contains no password, since the contents of a table can be copied.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int row) const;

    /// A favourite, shown or not, for a login: "mode" (0 by address, 1 by P2P ID), "address", "port",
    /// "account", "cipher" (its encrypted password) and "note". Empty for an unknown identity.
    Q_INVOKABLE [[nodiscard]] QVariantMap device(const QString &identity) const;

    /// Favourites to be added, in the form of AddingBatches::addDevices(): with "identity" and the decrypted
    /// "password" instead of "cipher".
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToAdd(const QStringList &identities) const;

    /// Position of the row with this identity, -1 when it is not shown.
    Q_INVOKABLE [[nodiscard]] int rowOf(const QString &identity) const;

    /// Identities of the checked rows in display order.
    Q_INVOKABLE [[nodiscard]] QStringList checkedIdentities() const;

    /// The texts of a row, separated by tabs, for the clipboard.
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
    QList<qsizetype> m_shown; ///< indices in m_favourites
    QString m_searchText;
};
