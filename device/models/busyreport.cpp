#include "device/models/busyreport.h"

#include <utility>

BusyReport::BusyReport(QObject *parent) : QObject(parent) {}

BusyReport::~BusyReport()
{
    end();
}

void BusyReport::setState(BusyState *state)
{
    if (m_state == state)
        return;
    end();
    m_state = state;
    update();
    Q_EMIT changed();
}

void BusyReport::setTitle(const QString &title)
{
    if (std::exchange(m_title, title) == title)
        return;
    if (m_state && m_work != 0)
        m_state->rename(m_work, title);
    Q_EMIT changed();
}

void BusyReport::setNeed(BusyState::Need need)
{
    if (std::exchange(m_need, need) != need)
        Q_EMIT changed();
}

void BusyReport::setActive(bool isActive)
{
    if (std::exchange(m_isActive, isActive) == isActive)
        return;
    update();
    Q_EMIT changed();
}

void BusyReport::update()
{
    if (!m_isActive)
        end();
    else if (m_state && m_work == 0)
        m_work = m_state->begin(m_title, m_need);
}

void BusyReport::end()
{
    const int work = std::exchange(m_work, 0);
    if (m_state && work != 0)
        m_state->end(work);
}
