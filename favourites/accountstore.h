// The stored accounts of the user, and their devices.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

/// An account with its display name.
struct StoredAccount
{
    QString name;     ///< display name, unique in the store
    QString account;  ///< user name for the login to a device
    QString password; ///< not encrypted

    [[nodiscard]] bool operator==(const StoredAccount &) const = default;
};

/// Accounts in a JSON file of the user, and the assignment of accounts to devices. Passwords are encrypted in
/// the file with a key that is part of the application (CAuthor::AesEncrypt()). The file is written
/// completely or not at all. A device is identified by a string that does not depend on its address, such as
/// its MAC, and has one account or none.
///
/// If the file cannot be opened or has one invalid entry, the store has no account, and problem() has the
/// reason. The next change that is written keeps an invalid file with the ending ".damaged" (".damaged2" and
/// so on if that exists) and writes another one. While the file exists but cannot be opened, changes fail and
/// it is not written. No password reaches the log.
///
/// Thread-safe. Only the constructor and the changes (put(), remove(), assign(), keep()) wait for the disk. A
/// change writes the file before it returns. It returns an empty string on success. Otherwise it changes
/// nothing and returns the reason: a sentence in the user's language or, if the file cannot be written,
/// the error text of the system. A change beyond maximumAccounts or maximumDevices fails.
class AccountStore
{
    Q_DECLARE_TR_FUNCTIONS(AccountStore)
public:
    static constexpr qsizetype maximumAccounts = 500;
    static constexpr qsizetype maximumDevices = 50'000;
    static constexpr qsizetype maximumText = 63; ///< characters of a name, an account or a password
    /// Characters of a device identity. A file with a longer one is invalid. assign() and keep() do not check
    /// it: the caller must not pass a longer or an empty one.
    static constexpr qsizetype maximumIdentity = 80;
    static constexpr qint64 maximumFileSize = 16'777'216; ///< bytes

    /// Reads the file, which may be missing. With an empty path, accounts are stored in memory only.
    explicit AccountStore(const QString &path);

    /// The reason why the file cannot be read, in the user's language. Empty otherwise, and after the next
    /// change that is written.
    [[nodiscard]] QString problem() const;

    /// All accounts, sorted by name in the order of the user's locale.
    [[nodiscard]] QList<StoredAccount> accounts() const;
    /// The account with this name; nullopt if there is none.
    [[nodiscard]] std::optional<StoredAccount> account(const QString &name) const;

    /// The number of devices of each account, by its name. Accounts without devices are omitted.
    [[nodiscard]] QHash<QString, int> deviceCounts() const;

    /// The account of the device with these identities; the first identity with an account decides. nullopt
    /// for a device without an account.
    [[nodiscard]] std::optional<StoredAccount> accountOf(const QStringList &identities) const;

    /// Adds or replaces an account. Replaces the account with the name `before` by `account`, which may have
    /// another name; the devices of `before` then have `account`. If there is no account `before`, or
    /// `before` is empty, `account` is added. Fails if another account has the name of `account`, or if its
    /// name, user name or password is empty or longer than maximumText.
    [[nodiscard]] QString put(const QString &before, const StoredAccount &account);

    /// Removes an account; its devices then have no account. Succeeds if there is no such account.
    [[nodiscard]] QString remove(const QString &name);

    /// The identities of a device, the most reliable one first.
    using Device = QStringList;

    /// Assigns the account of this name to the devices, in place of their earlier accounts. The assignment is
    /// stored under the first identity of each device; a device without identities is ignored. An empty name
    /// removes the accounts of the devices. Succeeds without writing the file if no assignment changes. Fails
    /// if there is no account of this name.
    [[nodiscard]] QString assign(const QList<Device> &devices, const QString &name);

    /// Assigns an account that may not be stored yet. If a stored account has this user name and password, it
    /// is assigned. Otherwise the account is added; its name is the user name (its first 57 characters), with
    /// a number from 2 if another account has that name. Fails if the user name or the password is empty or
    /// longer than maximumText.
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

    // m_writing must be locked, except in the constructor.
    void read();
    [[nodiscard]] Contents contentsToChange();

    [[nodiscard]] static std::optional<Contents> parsed(const QByteArray &text);
    [[nodiscard]] static QByteArray textOf(const Contents &contents);
    [[nodiscard]] static QString refusalOf(const StoredAccount &account);
    [[nodiscard]] Contents contents() const;
    [[nodiscard]] QString write(Contents contents);

    const QString m_path;
    std::mutex
        m_writing; ///< held from reading the entries to change until they are written; guards m_isUnopened
    bool m_isUnopened = false; ///< the file exists, but could not be opened

    mutable std::mutex m_mutex; ///< guards the members below
    QString m_problem;
    Contents m_contents;
};
