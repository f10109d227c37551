// The work of an operation with one device, such as an address change, as a function. A step is created on
// the main thread and runs on any other thread, usually in a batch.
#pragma once

#include "device/registry/loginresult.h"
#include "sdk/clock.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <stop_token>

/// The result of a step.
struct StepOutcome
{
    int result = resultCode(LoginResult::Success); ///< a LoginResult, or another code of the operation
    QString text;               ///< details in the user's language; empty if the code is sufficient
    QString response = {};      ///< response text of a command; Batch passes it on but does not keep it
    bool hasNoResponse = false; ///< a request got no complete response: a retry may succeed

    bool operator==(const StepOutcome &) const = default;
};

/// Ends a running step early: because of a stop or a deadline. The step checks it at its safe points, between
/// two requests and during timeouts, and then returns LoginResult::NotDone. Used on the thread of the step.
class StepControl
{
public:
    /// For a step that is neither stopped nor late.
    StepControl() = default;

    /// The deadline is `limit` from now on, measured by `clock`; no deadline if `limit` is 0 or `clock` is
    /// null. `releaseSlot` is called by releaseSlot(); it may be empty.
    StepControl(std::stop_token stop, std::shared_ptr<const sdk::Clock> clock,
                std::chrono::milliseconds limit, std::function<void()> releaseSlot)
        : m_stop(std::move(stop)), m_clock(std::move(clock)), m_limit(limit),
          m_releaseSlot(std::move(releaseSlot))
    {
        noteProgress();
    }

    /// Whether a stop was requested.
    [[nodiscard]] bool isStopped() const { return m_stop.stop_requested(); }
    /// Whether the deadline has passed.
    [[nodiscard]] bool isLate() const { return m_clock && m_clock->now() >= m_deadline; }
    /// Whether the step must end at this safe point.
    [[nodiscard]] bool shouldEnd() const { return isStopped() || isLate(); }
    [[nodiscard]] const std::stop_token &stopToken() const { return m_stop; }

    /// Sets the deadline again, to the full limit from now on. Called by a step with several parts after each
    /// part.
    void noteProgress() const
    {
        if (m_clock && m_limit.count() > 0)
            m_deadline = m_clock->now() + m_limit.count();
    }

    /// Called by a step that from now on only waits for its device. It no longer counts towards the maximum
    /// number of parallel steps of its batch (BatchPolicy::maximumParallel), unless no thread is left for
    /// another step.
    void releaseSlot() const
    {
        if (m_releaseSlot)
            m_releaseSlot();
    }

private:
    std::stop_token m_stop;
    std::shared_ptr<const sdk::Clock> m_clock;
    std::chrono::milliseconds m_limit{0};
    mutable std::int64_t m_deadline = std::numeric_limits<std::int64_t>::max(); ///< by m_clock
    std::function<void()> m_releaseSlot;
};

/// The work with one device. Must be called at most once. Blocks its thread for the timeouts of the network
/// library.
using DeviceStep = std::function<StepOutcome(const StepControl &control)>;

/// Creates the step of one device, by its "address:port". May be called for several devices, on the main
/// thread.
using DeviceStepMaker = std::function<DeviceStep(const QString &ipport)>;
