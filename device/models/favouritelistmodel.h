// The list of favourites for QML.
#pragma once

#include "device/models/checkablerows.h"

#include <QHash>
#include <QList>
#include <QVariantMap>

#include <utility>

/// The favourites of a folder that match a search text, with the progress of adding each one to the device
/// list. The identity of a row is its file name. Check marks and progress of a hidden favourite are kept.
/// The functions of CheckableRows apply to shown favourites only. A favourite matches if its address, port,
/// user name, note or type ("IP" or "P2P") contains the text; the case and spaces around the text are
/// ignored.
///
/// Lives on the main thread. Reads and writes no files: the caller reads them and passes them to load().
class FavouriteListModel : public CheckableRows
{
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY rowsChanged)
public:
    /// The progress of adding a favourite to the device list.
    enum Progress
    {
        Untried, ///< not added since it was first loaded, or since forgetProgress()
        Running, ///< is being added
        Added,
        Failed,
    };
    Q_ENUM(Progress)

    explicit FavouriteListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &searchText);
    [[nodiscard]] int totalCount() const
    {
        return static_cast<int>(m_favourites.size());
    } ///< shown and hidden

    /// Replaces the favourites by those of a folder, in the order of the file names. `files` is a map by file
    /// name, as CAuthor::readJsonFilesFromFolder() returns it. A value is a list of strings: type ("0" by
    /// address, otherwise by P2P ID), address, port, user name, encrypted password and note. A favourite that
    /// was loaded before (by file name) keeps its check mark and its progress.
    Q_INVOKABLE void load(const QVariantMap &files);

    /// Sets the results of adding favourites: maps of "identity", "result" and "message". The result 0 is a
    /// success, whose message is `successMessage`; every other result is a failure with the message in the
    /// map. Unchecks the added favourites. Unknown identities are ignored.
    Q_INVOKABLE void takeResults(const QVariantList &results, const QString &successMessage);

    /// Sets the progress Running with this message for these favourites. Unknown identities are ignored.
    Q_INVOKABLE void setRunning(const QStringList &identities, const QString &message);

    /// Sets the progress of all favourites to Untried and clears their messages.
    Q_INVOKABLE void forgetProgress();

    /// A favourite, shown or not, for a login: "mode" (0 by address, 1 by P2P ID), "address" (or the P2P ID),
    /// "port" (text), "account", "cipher" (its encrypted password) and "note". Its values are not truncated.
    /// Empty for an unknown identity.
    Q_INVOKABLE [[nodiscard]] QVariantMap device(const QString &identity) const;

    /// Favourites to be added, in the form of AddingBatches::addDevices(): as device(), with "identity", and
    /// with the decrypted "password" instead of "cipher". Unknown identities are left out. The password is
    /// undefined, often empty, if "cipher" was not encrypted by CAuthor.
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToAdd(const QStringList &identities) const;

    /// Type, address, port, user name and note of a row, separated by tabs, for the clipboard. Each value is
    /// cut to 200 characters. Empty if `row` is out of range.
    Q_INVOKABLE [[nodiscard]] QString textOf(int row) const;

Q_SIGNALS:
    void searchTextChanged();

protected:
    /// Keys: "checked", "identity", "fileName", "num" (position among all favourites, shown or not, from 1,
    /// as text), "type" ("IP" or "P2P"), "ip" (address or P2P ID), "port" (text), "ipport", "username",
    /// "note", "progress" (a Progress) and "message". Values of the file are cut to 200 characters. The map
    /// contains no password, since the contents of a table can be copied.
    [[nodiscard]] QVariantMap valuesOf(int row) const override;
    [[nodiscard]] bool isChecked(int row) const override { return at(row).checked; }
    void setChecked(int row, bool checked) override { m_favourites[m_shown.at(row)].checked = checked; }

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
        QString message;
    };

    [[nodiscard]] static Favourite favouriteOf(const QString &fileName, const QStringList &values);
    [[nodiscard]] bool isShown(const Favourite &favourite) const;
    [[nodiscard]] const Favourite &at(int row) const { return m_favourites.at(m_shown.at(row)); }
    void noteProgress(const QHash<QString, std::pair<Progress, QString>> &progressOf); ///< and the message
    [[nodiscard]] qsizetype indexOf(const QString &identity) const;
    void show();

    QList<Favourite> m_favourites;
    QList<qsizetype> m_shown; ///< indices in m_favourites
    QString m_searchText;
};
