// The accounts that the user keeps, and which device each of them is for.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

/// An account with the name that the user knows it by.
struct StoredAccount
{
    QString name;
    QString account;
    QString password;

    [[nodiscard]] bool operator==(const StoredAccount &) const = default;
};

/// Accounts in a file that belongs to the user, as favourites are: passwords are enciphered with a key that
/// is part of the program, and the file is written completely or not at all. A device is known by a text that
/// outlives its address, such as its MAC, and has one account or none.
///
/// A file that cannot be read gives no account. It is kept under another name when the user stores an account
/// again. No password reaches the log.
///
/// Thread-safe. Only changes wait for the disk; each returns why it failed, in the user's language, and
/// changes nothing then.
class AccountStore
{
    Q_DECLARE_TR_FUNCTIONS(AccountStore)
public:
    static constexpr qsizetype maximumAccounts = 500;
    static constexpr qsizetype maximumDevices = 50'000;
    static constexpr qsizetype maximumText = 63;          ///< characters of a name, an account or a password
    static constexpr qsizetype maximumIdentity = 80;      ///< characters
    static constexpr qint64 maximumFileSize = 16'777'216; ///< bytes

    /// Reads the file, which need not exist. Without a path nothing is kept beyond the run.
    explicit AccountStore(const QString &path);

    /// Why there is no account although there is a file, in the user's language; else empty.
    [[nodiscard]] QString problem() const;

    /// In the order of their names.
    [[nodiscard]] QList<StoredAccount> accounts() const;
    [[nodiscard]] std::optional<StoredAccount> account(const QString &name) const;

    /// How many devices each account is for, by its name.
    [[nodiscard]] QHash<QString, int> deviceCounts() const;

    /// The account of the device that these texts identify: of the first one that has any.
    [[nodiscard]] std::optional<StoredAccount> accountOf(const QStringList &identities) const;

    /// Adds an account, or changes the one that was called `before`, whose devices keep it.
    [[nodiscard]] QString put(const QString &before, const StoredAccount &account);

    /// Its devices have no account then.
    [[nodiscard]] QString remove(const QString &name);

    /// A device with the texts that identify it, the surest one first.
    using Device = QStringList;

    /// Gives each device the account of this name; none for an empty name.
    [[nodiscard]] QString assign(const QList<Device> &devices, const QString &name);

    /// The same for an account that need not be stored yet. It gets a name of its own, unless one with the
    /// same password is there.
    [[nodiscard]] QString keep(const QList<Device> &devices, const QString &account, const QString &password);

private:
    struct Contents
    {
        QList<StoredAccount> accounts;
        QHash<QString, QString> devices; ///< names of accounts, by the identity of the device

        [[nodiscard]] const StoredAccount *find(const QString &name) const;
        [[nodiscard]] QString freeName(const QString &account) const;
        void assign(const QList<Device> &changed, const QString &name);
    };

    void read();
    [[nodiscard]] static std::optional<Contents> parsed(const QByteArray &text);
    [[nodiscard]] static QByteArray textOf(const Contents &contents);
    [[nodiscard]] static QString refusalOf(const StoredAccount &account);
    [[nodiscard]] Contents contents() const;
    [[nodiscard]] QString write(Contents contents);
    [[nodiscard]] QString setDamagedAside() const;

    const QString m_path;
    std::mutex m_writing; ///< held from the reading of what is changed until it is written

    mutable std::mutex m_mutex; ///< of what follows
    QString m_problem;
    Contents m_contents;
};
