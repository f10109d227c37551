// Shows the thread sanitizer that QThreadPool hands a task over to a thread of the pool: what the caller
// wrote before start() is visible to the task. Qt is not built with the sanitizer, so its locks are
// invisible, and a task on a thread that already exists would be reported as a race. These definitions
// replace those of Qt in tests with the sanitizer.
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <functional>
#include <utility>

namespace {

/// Runs a task in the pool, after the hand-over.
class HandedOverTask final : public QRunnable
{
public:
    __attribute__((no_sanitize("thread"))) explicit HandedOverTask(QRunnable *task) : m_task(task) {}

    // This object is read before the hand-over is visible to the sanitizer.
    __attribute__((no_sanitize("thread"))) void run() override
    {
        __tsan_acquire(m_task);
        const bool isOwned = m_task->autoDelete();
        m_task->run();
        if (isOwned)
            delete m_task;
    }

private:
    QRunnable *const m_task; ///< owned if its autoDelete() is set, as by QThreadPool
};

using Start = void (*)(QThreadPool *pool, QRunnable *task, int priority);

} // namespace

void QThreadPool::start(QRunnable *runnable, int priority)
{
    static const auto startOfQt =
        reinterpret_cast<Start>(dlsym(RTLD_NEXT, "_ZN11QThreadPool5startEP9QRunnablei"));
    auto *task = new HandedOverTask(runnable);
    __tsan_release(runnable);
    startOfQt(this, task, priority);
}

void QThreadPool::start(std::function<void()> functionToRun, int priority)
{
    start(QRunnable::create(std::move(functionToRun)), priority);
}
