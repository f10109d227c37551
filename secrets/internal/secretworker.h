#pragma once

#include "secrets/secretstore.h"

#include <QObject>
#include <QSemaphore>

#include <memory>

/// Calls a SecretStore on the thread of this object and reports the results as signals. The functions block
/// that thread.
class SecretWorker : public QObject
{
    Q_OBJECT
public:
    /// `loadings` is released at the end of readAll().
    SecretWorker(std::shared_ptr<SecretStore> store, std::shared_ptr<QSemaphore> loadings);

    void readAll();
    void store(const Secret &secret);
    void remove(const QString &file);

Q_SIGNALS:
    void secretsRead(const StoredSecrets &read);
    void stored(const Secret &secret, const SecretProblem &problem);
    void removed(const QString &file, const SecretProblem &problem);

private:
    const std::shared_ptr<SecretStore> m_store;
    const std::shared_ptr<QSemaphore> m_loadings;
};
