// The list of favourites for QML.
#pragma once

#include "device/models/checkablerows.h"

#include <QHash>
#include <QList>
#include <QVariantMap>

#include <utility>

/// The favourites of a folder that match a search text, with the progress of adding each one to the device
/// list. The identity of a row is its file name. Check marks and progress of a hidden favourite are kept. The
/// functions of CheckableRows apply to shown favourites only. Lives on the main thread; reads and writes no
/// files.
class FavouriteListModel : public CheckableRows
{
    Q_OBJECT
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(int totalCount READ totalCount NOTIFY rowsChanged)
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

    [[nodiscard]] QString searchText() const { return m_searchText; }
    void setSearchText(const QString &searchText);
    [[nodiscard]] int totalCount() const { return static_cast<int>(m_favourites.size()); } ///< also hidden

    /// Loads the favourites of a folder, in the form of CAuthor::readJsonFilesFromFolder() and in the order
    /// of the file names. A favourite that was loaded before keeps its check mark and its progress.
    Q_INVOKABLE void load(const QVariantMap &files);

    /// Sets the results of adding favourites: maps with the keys of ResultKey, `message` for a failure only.
    /// Unchecks the added ones.
    Q_INVOKABLE void takeResults(const QVariantList &results, const QString &successMessage);

    /// Marks these favourites as being added.
    Q_INVOKABLE void setRunning(const QStringList &identities, const QString &message);

    /// Clears the progress of all favourites.
    Q_INVOKABLE void forgetProgress();

    /// A favourite, shown or not, for a login: "mode" (0 by address, 1 by P2P ID), "address", "port",
    /// "account", "cipher" (its encrypted password) and "note". Empty for an unknown identity.
    Q_INVOKABLE [[nodiscard]] QVariantMap device(const QString &identity) const;

    /// Favourites to be added, in the form of AddingBatches::addDevices(): with "identity" and the decrypted
    /// "password" instead of "cipher". Without unknown identities.
    Q_INVOKABLE [[nodiscard]] QVariantList devicesToAdd(const QStringList &identities) const;

    /// The texts of a row, separated by tabs, for the clipboard.
    Q_INVOKABLE [[nodiscard]] QString textOf(int row) const;

Q_SIGNALS:
    void searchTextChanged();

protected:
    /// "checked", "identity", "fileName", "num" (its number among all, from 1, as text), "type" ("IP" or
    /// "P2P"), "ip", "port" (text), "ipport", "username", "note", "progress" (a Progress) and "message". The
    /// map contains no password, since the contents of a table can be copied.
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
