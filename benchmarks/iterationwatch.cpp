#include "benchmarks/iterationwatch.h"

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

IterationWatch::IterationWatch()
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        m_longest = std::max(m_longest, m_sinceIteration.isValid() ? m_sinceIteration.elapsed() : 0);
        m_sinceIteration.start();
    });
}

void IterationWatch::start()
{
    m_timer.start(5ms);
}
