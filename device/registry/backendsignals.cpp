#include "device/registry/backendsignals.h"

void BackEndSignals::queue(const std::function<void()> &work) const
{
    QMetaObject::invokeMethod(&m_backEnd, work, Qt::QueuedConnection);
}

void BackEndSignals::noteChangedRows()
{
    if (m_changedRowsNoted.exchange(true))
        return;
    queue([this] {
        m_changedRowsNoted = false;
        emitNow<&CDeviceBase::signalCDeviceAddSingleDeviceToTable>();
    });
}
