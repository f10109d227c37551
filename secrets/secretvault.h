// The passwords of the secret service, for the window.
#pragma once

#include "secrets/secretstore.h"

#include <QObject>
#include <QSemaphore>
#include <QThread>

#include <chrono>
#include <memory>

class SecretWorker;

/// The passwords that the secret service of the desktop has for files of the application. The service is
/// called on a thread of this object, so that no function waits for it, except those that say so.
///
/// Where a password is: the file contains it until the service has confirmed it. So a failure, also the end
/// of the process, loses no password. A password in a file is newer than that of the service, and is used.
/// The owner of a file therefore
///
///  - writes a new password into the file, then calls keep(),
///  - calls keep() after loaded() for a password that the file contains already,
///  - removes the password from the file after kept(), if the file still contains the same one,
///  - uses value() if the file contains no password.
///
/// Main thread only.
class SecretVault : public QObject
{
    Q_OBJECT
    /// The last failure that the user should know, in the user's language; empty if there was none.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged)
public:
    enum class State
    {
        Loading,    ///< the passwords are being read; the user may be asked to unlock the service
        Ready,      ///< the passwords have been read
        Unavailable ///< they cannot be read, until the next start
    };

    /// Starts to read the passwords. `store` must not be null.
    explicit SecretVault(std::shared_ptr<SecretStore> store, QObject *parent = nullptr);

    /// Calls finish().
    ~SecretVault() override;

    /// Waits until the service has done the work of earlier calls, up to 2 s, then interrupts it and waits up
    /// to 3 s more. While Loading, it is interrupted at once. Emits the signals of the work that has ended;
    /// other work is cancelled. Called at the end of the application: the state is Unavailable afterwards,
    /// value() keeps its results, and no other function may be called.
    void finish();

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] QString problem() const { return m_problem; }

    /// Waits until the passwords are read, up to `limit`, and emits loaded() in that case.
    void awaitLoaded(std::chrono::milliseconds limit);

    /// The password of a file. Empty if the service has none, and before the passwords have been read.
    [[nodiscard]] QString value(const QString &file) const { return m_values.value(file); }

    /// Passes a password to the service. kept() follows on success, otherwise problem() changes. Does nothing
    /// while the service is not Ready.
    void keep(const Secret &secret);

    /// Removes the password of a file from the service, if it has one. value() is empty then; a removal while
    /// the service is Loading takes effect after loaded(). problem() changes if the password stays there,
    /// also while the service is Unavailable.
    void remove(const QString &file);

    /// Reports that a password is needed which the service has, but cannot return: problem() changes if the
    /// service is Unavailable. Without a call, a host without a service reports no problem.
    void reportMissing();

Q_SIGNALS:
    void loaded();                                        ///< state() is not Loading any more
    void kept(const QString &file, const QString &value); ///< the service has stored the password
    void problemChanged();

private:
    void setProblem(const QString &problem);
    void takeSecrets(const StoredSecrets &read);
    void takeStored(const Secret &secret, const SecretProblem &problem);
    void takeRemoved(const QString &file, const SecretProblem &problem);

    const std::shared_ptr<SecretStore> m_store;
    const std::shared_ptr<QSemaphore> m_loadings; ///< released when the worker has read the passwords
    std::unique_ptr<QThread> m_thread;            ///< null after finish()
    SecretWorker *m_worker;                       ///< lives on m_thread, which deletes it
    State m_state = State::Loading;
    QHash<QString, QString> m_values; ///< by file
    SecretProblem m_loadingProblem;
    QString m_problem;
};
