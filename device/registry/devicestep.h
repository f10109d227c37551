// The work of an operation with one device. It is made on the scene's thread and runs on any other.
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

/// What has come of a step.
struct StepOutcome
{
    int result = resultCode(LoginResult::Success); ///< a LoginResult, or another code of the operation
    QString text;                                  ///< in the user's language; empty when the code says all
    QString answer = {}; ///< what the device has sent, for the one who began the work; no batch keeps it
    bool isUnanswered = false; ///< the device was reached and has not answered: another try may succeed

    bool operator==(const StepOutcome &) const = default;
};

/// What a running step asks at its safe points: between two requests, and in its waits.
class StepControl
{
public:
    /// Of a step that nothing ends early.
    StepControl() = default;

    /// The step is late after `limit` by `clock`; 0 for never. `releasePlace` may be empty.
    StepControl(std::stop_token stop, std::shared_ptr<const sdk::Clock> clock,
                std::chrono::milliseconds limit, std::function<void()> releasePlace)
        : m_stop(std::move(stop)), m_clock(std::move(clock)), m_limit(limit),
          m_releasePlace(std::move(releasePlace))
    {
        noteProgress();
    }

    [[nodiscard]] bool isStopped() const { return m_stop.stop_requested(); }
    [[nodiscard]] bool isLate() const { return m_clock && m_clock->now() >= m_deadline; }
    [[nodiscard]] bool shouldEnd() const { return isStopped() || isLate(); }
    [[nodiscard]] const std::stop_token &stopToken() const { return m_stop; }

    /// Of a step that does several things, on its thread: one is done, and the next one has the whole time.
    void noteProgress() const
    {
        if (m_clock && m_limit.count() > 0)
            m_deadline = m_clock->now() + m_limit.count();
    }

    /// The step only waits for its device from now on: another device may take its place among those that are
    /// worked on at the same time.
    void releasePlace() const
    {
        if (m_releasePlace)
            m_releasePlace();
    }

private:
    std::stop_token m_stop;
    std::shared_ptr<const sdk::Clock> m_clock;
    std::chrono::milliseconds m_limit{0};
    mutable std::int64_t m_deadline = std::numeric_limits<std::int64_t>::max(); ///< a time of the clock
    std::function<void()> m_releasePlace;
};

/// Runs once, and blocks its thread for the waits of the library.
using DeviceStep = std::function<StepOutcome(const StepControl &control)>;

/// Makes the steps of one work for devices by address and port. Is called on the scene's thread.
using DeviceStepMaker = std::function<DeviceStep(const QString &ipport)>;
