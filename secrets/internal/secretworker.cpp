#include "secrets/internal/secretworker.h"

#include <utility>

SecretWorker::SecretWorker(std::shared_ptr<SecretStore> store, std::shared_ptr<QSemaphore> loadings)
    : m_store(std::move(store)), m_loadings(std::move(loadings))
{
}

void SecretWorker::readAll()
{
    Q_EMIT secretsRead(m_store->readAll());
    m_loadings->release();
}

void SecretWorker::store(const Secret &secret)
{
    Q_EMIT stored(secret, m_store->store(secret));
}

void SecretWorker::remove(const QString &file)
{
    Q_EMIT removed(file, m_store->remove(file));
}
