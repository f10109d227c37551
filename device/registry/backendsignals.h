// The signals of a back end, for the parts that it consists of.
#pragma once

#include "device/registry/devicebase.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <utility>

/// Emits the signals of one back end. Belongs to the back end and ends with it. Any thread.
class BackEndSignals
{
public:
    explicit BackEndSignals(CDeviceBase &backEnd) : m_backEnd(backEnd) {}
    BackEndSignals(const BackEndSignals &) = delete;
    BackEndSignals &operator=(const BackEndSignals &) = delete;

    /// Emits a signal in this call.
    template<typename... Parameters, typename... Arguments>
    void emitNow(void (CDeviceBase::*signal)(Parameters...), Arguments &&...arguments) const
    {
        Q_EMIT(m_backEnd.*signal)(std::forward<Arguments>(arguments)...);
    }

    /// Emits signals that were collected.
    void emitNow(const std::function<void(CDeviceBase &backEnd)> &news) const { news(m_backEnd); }

    /// Emits `target` whenever `sender` emits `signal`, on the same thread.
    template<typename Sender, typename Signal, typename Target>
    void relay(const Sender *sender, Signal signal, Target target) const
    {
        QObject::connect(sender, signal, &m_backEnd, target, Qt::DirectConnection);
    }

    /// Runs `work` later on the scene's thread, behind the signals that this thread has queued. It is dropped
    /// with the back end.
    void queue(const std::function<void()> &work) const;

    /// Emits signalCDeviceAddSingleDeviceToTable later, once however often it is called before.
    void noteChangedRows();

    /// Lives on the scene's thread, and ends with the back end.
    [[nodiscard]] QObject *receiver() const { return &m_backEnd; }

private:
    CDeviceBase &m_backEnd;
    std::atomic<bool> m_changedRowsNoted = false;
};
