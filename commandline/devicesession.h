// Work in a session, a login to one device that stays open for several requests.
#pragma once

#include "commandline/commandcontext.h"
#include "device/registry/pagestep.h"

#include <QJsonObject>

namespace commandline {

/// The result of the work with one device.
struct SessionResult
{
    StepOutcome outcome;
    QVariant value; ///< returned by the job; invalid if the job was not run
};

/// Logs in to the device of a row of the device list with its account (its own one, else that of
/// setAccount()), runs `job` in the session on this thread, and applies its results and signals to the back
/// end (PageOutcome::take()). If the device is not initialised or the login fails, the job is not run, and
/// the outcome has that result, without a text. If a request of the job fails or the device refuses a value,
/// the outcome is a failure; its text has the reason in English. The session stays open until the next login.
/// Blocks for the timeouts of the requests. Main thread.
[[nodiscard]] SessionResult workInSession(const CommandContext &context, const QJsonObject &row,
                                          const SessionJob &job);

/// The failed outcome for a device that has no such channel. `channel` is from 0; the text counts from 1.
[[nodiscard]] StepOutcome noChannel(int channel);

/// Work with several devices on the main thread, one after another. It ends early when several devices have
/// refused the account without a success between them (BatchPolicy::wrongPasswordsInARow of them), since each
/// further attempt counts towards the lock of a device, and when the user interrupts it.
class DeviceSequence
{
public:
    /// `context` must outlive this object.
    explicit DeviceSequence(const CommandContext &context) : m_context(context) {}

    /// Runs `work` for each row in order. After each device, calls `take` with the outcome and writes the
    /// outcome as progress. After an early end, `work` is not run for the remaining rows; `take` gets an
    /// outcome with BatchReport::NotDone for each of them. Blocks; processes events between two devices.
    void run(const QList<QJsonObject> &rows, const std::function<StepOutcome(const QJsonObject &row)> &work,
             const std::function<void(const QJsonObject &row, const StepOutcome &outcome)> &take) const;

private:
    const CommandContext &m_context;
};

} // namespace commandline
