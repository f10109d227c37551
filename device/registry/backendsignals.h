// Emission of the signals of a back end by its components.
#pragma once

#include "device/registry/devicebase.h"

#include <QObject>

#include <atomic>
#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

/// A pointer to a signal as a type. GCC cannot compare the pointers in a constant expression with sanitizers.
template<auto signal>
struct SignalType
{
};

/// Whether `signal`, a pointer to a signal of CDeviceBase, is in the list forwardedSignals, whose signals the
/// factory forwards.
template<auto signal>
inline constexpr bool isForwarded = []<std::size_t... index>(std::index_sequence<index...>)
{
    return (std::is_same_v<SignalType<signal>, SignalType<std::get<index>(forwardedSignals)>> || ...);
}
(std::make_index_sequence<std::tuple_size_v<decltype(forwardedSignals)>>());

/// Emits the signals of one back end for its components. The back end owns this object. Functions may be
/// called on any thread unless stated otherwise.
class BackEndSignals
{
public:
    explicit BackEndSignals(CDeviceBase &backEnd) : m_backEnd(backEnd) {}
    BackEndSignals(const BackEndSignals &) = delete;
    BackEndSignals &operator=(const BackEndSignals &) = delete;

    /// A function that emits a signal of the back end.
    using Emission = std::function<void(CDeviceBase &backEnd)>;
    /// Returns an Emission of `signal` with copies of these arguments. Emits nothing itself.
    template<auto signal, typename... Arguments>
    [[nodiscard]] static Emission emission(const Arguments &...arguments)
    {
        static_assert(isForwarded<signal>, "add the signal to forwardedSignals and to the factory");
        return bound(signal, arguments...);
    }
    /// Emits the signal of `emission` in this call, on the caller's thread.
    void emitNow(const Emission &emission) const { emission(m_backEnd); }

    /// Emits `signal` in this call, on the caller's thread.
    template<auto signal, typename... Arguments>
    void emitNow(const Arguments &...arguments) const
    {
        static_assert(isForwarded<signal>, "add the signal to forwardedSignals and to the factory");
        Q_EMIT(m_backEnd.*signal)(arguments...);
    }

    /// From now on, emits `target` whenever `sender` emits `signal`, on the thread of that emission.
    template<auto target, typename Sender, typename Signal>
    void relay(const Sender *sender, Signal signal) const
    {
        static_assert(isForwarded<target>, "add the signal to forwardedSignals and to the factory");
        QObject::connect(sender, signal, &m_backEnd, target, Qt::DirectConnection);
    }

    /// From now on, calls noteChangedRows() whenever `sender` emits `signal`.
    template<typename Sender, typename Signal>
    void relayChangedRows(const Sender *sender, Signal signal)
    {
        QObject::connect(
            sender, signal, &m_backEnd, [this] { noteChangedRows(); }, Qt::DirectConnection);
    }

    /// Runs `work` later on the main thread, after the signals that the caller's thread has queued before.
    /// `work` is dropped if the back end is destroyed first.
    void queue(const std::function<void()> &work) const;

    /// Rows have changed outside a search. Emits signalCDeviceAddSingleDeviceToTable later on the main
    /// thread, once for all calls until then.
    void noteChangedRows();

    /// The back end, as the context object of connections whose slots must run on the main thread.
    [[nodiscard]] QObject *receiver() const { return &m_backEnd; }

private:
    template<typename... Parameters>
    [[nodiscard]] static Emission bound(void (CDeviceBase::*signal)(Parameters...),
                                        const std::decay_t<Parameters> &...values)
    {
        return [signal, values...](CDeviceBase &backEnd) {
            Q_EMIT(backEnd.*signal)(values...);
        };
    }

    CDeviceBase &m_backEnd;
    std::atomic<bool> m_changedRowsNoted = false;
};
