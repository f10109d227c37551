// The work of an operation with one device. A step is created on the main thread and runs on any other
// thread.
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
    QString response = {};      ///< response of the device, for the caller; not kept by batches
    bool hasNoResponse = false; ///< the device was reached but did not respond: a retry may succeed

    bool operator==(const StepOutcome &) const = default;
};

/// Control of a running step. The step checks it at its safe points: between two requests and during
/// timeouts.
class StepControl
{
public:
    /// For a step that is not ended early.
    StepControl() = default;

    /// `limit` is the deadline from now by `clock`; 0 for none. `releaseSlot` may be empty.
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
    [[nodiscard]] bool shouldEnd() const { return isStopped() || isLate(); }
    [[nodiscard]] const std::stop_token &stopToken() const { return m_stop; }

    /// Restarts the deadline. Called by a step with several parts after each part, on its thread.
    void noteProgress() const
    {
        if (m_clock && m_limit.count() > 0)
            m_deadline = m_clock->now() + m_limit.count();
    }

    /// From now on the step only waits for its device. It no longer counts towards the limit of devices at a
    /// time.
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

/// Runs once. Blocks its thread for the timeouts of the library.
using DeviceStep = std::function<StepOutcome(const StepControl &control)>;

/// Creates the steps of one work, for devices by "address:port". Called on the main thread.
using DeviceStepMaker = std::function<DeviceStep(const QString &ipport)>;
