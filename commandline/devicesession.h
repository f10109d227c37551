// Work in a session with one device.
#pragma once

#include "commandline/commandcontext.h"
#include "device/registry/pagestep.h"

#include <QJsonObject>

namespace commandline {

struct SessionResult
{
    StepOutcome outcome;
    QVariant value; ///< of the job; invalid without a login
};

/// Logs in to the device of a row with its account and runs a job in the session. The outcome is a failure if
/// the login or a request of the job fails, or if a value is refused; its text has the reason. Blocks.
[[nodiscard]] SessionResult workInSession(const CommandContext &context, const QJsonObject &row,
                                          const SessionJob &job);

/// The outcome for a device without this channel (from 0).
[[nodiscard]] StepOutcome noChannel(int channel);

/// Work with several devices, one after another. It ends after several refused accounts in a row, since each
/// further attempt counts towards the lock of a device, and when the user interrupts it.
class DeviceSequence
{
public:
    explicit DeviceSequence(const CommandContext &context) : m_context(context) {}

    /// Runs `work` for each row. Calls `take` with its outcome and writes it as progress; devices after the
    /// end are not done. Processes events between two devices.
    void run(const QList<QJsonObject> &rows, const std::function<StepOutcome(const QJsonObject &row)> &work,
             const std::function<void(const QJsonObject &row, const StepOutcome &outcome)> &take) const;

private:
    const CommandContext &m_context;
};

} // namespace commandline
