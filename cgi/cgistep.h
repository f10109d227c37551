// A command to a device as a step of a batch.
#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

/// A command and its device.
struct CgiCommand
{
    QString url;
    QString user;
    QString password;
    QString ipport; ///< of the login
};

/// The result of a step whose login succeeded and whose command failed or could not be sent. It differs from
/// the results of a login and from 999, a configuration that a device refused.
inline constexpr int commandFailed = 998;

/// Receives the complete response, or "Error:" and the reason, on the step's thread, before the step ends.
/// Not called if the command is not sent.
using ResponseSink = std::function<void(const QString &response)>;

/// The outcome has the result of a login or a certificate that prevents the command, without a text. If the
/// web service refuses the account, the result is WrongPassword, with a text. Otherwise it is Success or
/// commandFailed. The response on success, or the text on failure, is the start (up to 4,000 characters) of
/// the result of CgiProcedure::exchange(). A stop ends the transfer immediately; before the command, the
/// device is not done. `surroundings` is copied; its watch is not used.
[[nodiscard]] DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command,
                                 const ResponseSink &sink = {});

/// The step of a command that cannot be sent: no request is made. Its text is "Error:" and `reason`, which is
/// in the user's language.
[[nodiscard]] DeviceStep refusedCgiStep(int result, const QString &reason);

/// Commands have no deadline: they have separate limits for each type of response, and a recording may take
/// any time.
[[nodiscard]] BatchPolicy commandPolicy(const Batches &batches);

/// True if the batch ended before the device's command.
[[nodiscard]] bool isNotDone(const StepOutcome &outcome);

/// The text of a row or a cell: the start of the response, "Error:" and the reason, or the text for "not
/// done".
[[nodiscard]] QString cgiResultText(const StepOutcome &outcome);
