#include "secrets/secretvault.h"

#include "secrets/internal/secretworker.h"

#include <QMetaObject>

#include <utility>

using namespace std::chrono_literals;

namespace {

// At the end of the application: for work that has begun, then for the interruption of a call.
constexpr auto longestEnd = 2s;
constexpr auto longestInterruption = 3s;

} // namespace

SecretVault::SecretVault(std::shared_ptr<SecretStore> store, QObject *parent)
    : QObject(parent), m_store(std::move(store)), m_loadings(std::make_shared<QSemaphore>()),
      m_thread(std::make_unique<QThread>()), m_worker(new SecretWorker(m_store, m_loadings))
{
    m_worker->moveToThread(m_thread.get());
    connect(m_thread.get(), &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &SecretWorker::secretsRead, this, &SecretVault::takeSecrets);
    connect(m_worker, &SecretWorker::stored, this, &SecretVault::takeStored);
    connect(m_worker, &SecretWorker::removed, this, &SecretVault::takeRemoved);
    m_thread->start();
    QMetaObject::invokeMethod(m_worker, &SecretWorker::readAll);
}

SecretVault::~SecretVault()
{
    finish();
}

void SecretVault::finish()
{
    if (!m_thread)
        return;
    if (m_state == State::Loading)
        m_store->interrupt();
    // After the calls that wait.
    QMetaObject::invokeMethod(m_worker, [thread = m_thread.get()] { thread->quit(); });
    bool hasEnded = m_thread->wait(longestEnd);
    if (!hasEnded) {
        m_store->interrupt();
        hasEnded = m_thread->wait(longestInterruption);
    }
    if (hasEnded)
        m_thread.reset();
    else
        static_cast<void>(m_thread.release()); // a thread must not be destroyed while it runs
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    m_state = State::Unavailable;
}

void SecretVault::awaitLoaded(std::chrono::milliseconds limit)
{
    if (m_state == State::Loading && m_loadings->tryAcquire(1, static_cast<int>(limit.count())))
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void SecretVault::keep(const Secret &secret)
{
    if (m_state == State::Ready && !secret.value.isEmpty())
        QMetaObject::invokeMethod(m_worker, [worker = m_worker, secret] { worker->store(secret); });
}

void SecretVault::remove(const QString &file)
{
    if (m_state == State::Unavailable) {
        takeRemoved(file, m_loadingProblem);
        return;
    }
    m_values.remove(file);
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, file] { worker->remove(file); });
}

void SecretVault::reportMissing()
{
    const QString problem =
        tr("部分密码保存在桌面的密钥服务中，目前无法读取（%1）。请重新输入密码").arg(m_loadingProblem.text());
    if (m_state == State::Unavailable && m_problem != problem)
        setProblem(problem);
}

void SecretVault::setProblem(const QString &problem)
{
    m_problem = problem;
    Q_EMIT problemChanged();
}

void SecretVault::takeSecrets(const StoredSecrets &read)
{
    m_loadingProblem = read.problem;
    m_state = read.problem.isProblem() ? State::Unavailable : State::Ready;
    m_values = read.values;
    Q_EMIT loaded();
    // Many desktops have no service. The passwords of this host are then in the files.
    const bool isToReport = read.problem.isProblem() && read.problem.kind != SecretProblem::Absent;
    if (isToReport && m_problem.isEmpty()) // otherwise reportMissing() has reported it
        setProblem(tr("无法使用桌面的密钥服务（%1）。密码保存在文件中").arg(read.problem.text()));
}

void SecretVault::takeStored(const Secret &secret, const SecretProblem &problem)
{
    if (problem.isProblem()) {
        setProblem(tr("密码无法存入桌面的密钥服务（%1），保存在文件中").arg(problem.text()));
        return;
    }
    m_values.insert(secret.file, secret.value);
    Q_EMIT kept(secret.file, secret.value);
}

void SecretVault::takeRemoved(const QString &file, const SecretProblem &problem)
{
    m_values.remove(file); // may have been stored after remove()
    if (problem.isProblem())
        setProblem(
            tr("密码无法从桌面的密钥服务中删除（%1），请在系统的密钥管理程序中删除").arg(problem.text()));
}
