// A secret service in memory, whose faults a test sets.
#pragma once

#include "secrets/secretstore.h"

#include <QMutex>
#include <QWaitCondition>

#include <memory>

/// The passwords of the service. Several stores may use one service, as several copies of the application do.
/// Any thread.
struct MemoryService
{
    QMutex mutex;
    QHash<QString, QString> values; ///< by file
    SecretProblem readProblem = {};
    SecretProblem storeProblem = {};
    SecretProblem removeProblem = {};
    QString refused;   ///< the value that is not stored
    QStringList calls; ///< of store(), with the titles
};

class MemorySecretStore : public SecretStore
{
public:
    explicit MemorySecretStore(std::shared_ptr<MemoryService> service) : m_service(std::move(service)) {}

    /// From now on, all functions block until interrupt() or release().
    void hold()
    {
        const QMutexLocker lock(&m_service->mutex);
        m_isHeld = true;
    }
    void release()
    {
        const QMutexLocker lock(&m_service->mutex);
        m_isHeld = false;
        m_released.wakeAll();
    }

    StoredSecrets readAll() override
    {
        const QMutexLocker lock(&m_service->mutex);
        if (!await())
            return {.problem = {.kind = SecretProblem::NoResponse}};
        if (m_service->readProblem.isProblem())
            return {.problem = m_service->readProblem};
        return {.values = m_service->values};
    }

    SecretProblem store(const Secret &secret) override
    {
        const QMutexLocker lock(&m_service->mutex);
        if (!await())
            return {.kind = SecretProblem::NoResponse};
        m_service->calls.append(secret.title);
        if (secret.value == m_service->refused)
            return {.kind = SecretProblem::Failed};
        if (!m_service->storeProblem.isProblem())
            m_service->values.insert(secret.file, secret.value);
        return m_service->storeProblem;
    }

    SecretProblem remove(const QString &file) override
    {
        const QMutexLocker lock(&m_service->mutex);
        if (!await())
            return {.kind = SecretProblem::NoResponse};
        if (!m_service->removeProblem.isProblem())
            m_service->values.remove(file);
        return m_service->removeProblem;
    }

    void interrupt() override
    {
        const QMutexLocker lock(&m_service->mutex);
        m_isInterrupted = true;
        m_released.wakeAll();
    }

private:
    /// False after an interruption. The mutex is locked.
    bool await()
    {
        while (m_isHeld && !m_isInterrupted)
            m_released.wait(&m_service->mutex);
        return !m_isInterrupted;
    }

    const std::shared_ptr<MemoryService> m_service;
    QWaitCondition m_released;
    bool m_isHeld = false;
    bool m_isInterrupted = false;
};
