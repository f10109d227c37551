// A command to a device as a step of a batch.
#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

/// What is sent to which device.
struct CgiCommand
{
    QString url;
    QString user;
    QString password;
    QString ipport; ///< of the login
};

/// The result of a step whose device has let the account in, but whose command has failed, or that could not
/// be sent. Beside those of a login, and beside 999, which stands for a configuration that a device refused.
inline constexpr int commandFailed = 998;

/// Takes the whole answer, on the step's thread, before the step ends.
using AnswerSink = std::function<void(const QString &answer)>;

/// The outcome has the result of a login that forbids the command, else Success or commandFailed, and as its
/// answer, or its text when it has failed, the beginning of what CgiProcedure::run() returns. A stop ends the
/// transfer at once; before the command it leaves the device not done. `surroundings` are copied, their watch
/// is not used.
[[nodiscard]] DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command,
                                 const AnswerSink &sink = {});

/// Of a command that cannot be sent, for which nothing is asked; `reason` is in the user's language.
[[nodiscard]] DeviceStep refusedCgiStep(int result, const QString &reason);

/// Commands have no deadline: they have limits of their own for each kind of answer, and a recording takes as
/// long as its transfer goes on.
[[nodiscard]] BatchPolicy commandPolicy(const Batches &batches);

/// Whether the batch has ended before it came to the device.
[[nodiscard]] bool isNotDone(const StepOutcome &outcome);

/// What a row or a cell says: the beginning of the answer, "Error:" and why there is none, or the words for
/// not done.
[[nodiscard]] QString cgiResultText(const StepOutcome &outcome);
