// Access to a service that stores passwords.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>

/// A password that a settings file or a favourite would contain otherwise.
struct Secret
{
    QString file;  ///< absolute path of that file, which identifies the secret
    QString title; ///< shown by the key manager of the desktop, in the user's language
    QString value; ///< not encrypted, not empty
};

/// The reason why a service has not done its work.
struct SecretProblem
{
    Q_DECLARE_TR_FUNCTIONS(SecretProblem)
public:
    enum Kind
    {
        None,       ///< success
        Absent,     ///< there is no service
        Locked,     ///< the user has not unlocked it, or has refused access
        NoResponse, ///< within the time limit
        Failed,     ///< another error: `detail`
    };

    Kind kind = None;
    QString detail = {}; ///< text of the system or of the service; contains no secret

    [[nodiscard]] bool isProblem() const { return kind != None; }

    /// The reason for the user, in the user's language. Empty for None.
    [[nodiscard]] QString text() const;
};

/// Result of SecretStore::readAll().
struct StoredSecrets
{
    SecretProblem problem = {};
    QHash<QString, QString> values = {}; ///< by file; empty after a problem
};

/// A service that stores passwords outside of the files of the application. All functions except interrupt()
/// are called on one thread at a time, which must not be that of the window: they block until the service has
/// responded, up to a time limit. The user may be asked to unlock the service meanwhile.
class SecretStore
{
public:
    static constexpr qsizetype longestValue = 4096; ///< bytes in UTF-8; longer values are not read

    SecretStore() = default;
    SecretStore(const SecretStore &) = delete;
    SecretStore &operator=(const SecretStore &) = delete;
    virtual ~SecretStore() = default;

    /// All secrets of the application.
    [[nodiscard]] virtual StoredSecrets readAll() = 0;

    /// Stores a secret in place of an earlier one of its file. Success only if the service returns the same
    /// value afterwards.
    [[nodiscard]] virtual SecretProblem store(const Secret &secret) = 0;

    /// Removes the secret of a file. Success if there is none.
    [[nodiscard]] virtual SecretProblem remove(const QString &file) = 0;

    /// Ends a running function soon, and each later one, which then return a problem. Any thread.
    virtual void interrupt() = 0;
};
