// A command to a device as a step of a batch.
#pragma once

#include "cgi/cgiprocedure.h"
#include "device/batch/batches.h"

/// A command and its device.
struct CgiCommand
{
    QString url; ///< complete, with its scheme
    QString user;
    QString password;
    QString ipport; ///< "address:port" of the login, not of the web service
};

/// The result of a step whose login check did not prevent the command, and whose command failed or could not
/// be sent. It differs from the results of a login and from 999, a configuration that a device refused.
inline constexpr int commandFailed = 998;

/// Receives the text of CgiProcedure::exchange(): the complete response, or "Error:" and the reason. Called
/// once, on the step's thread, before the step ends. Not called if the login check prevents the command, or
/// if a stop or the deadline prevents it.
using ResponseSink = std::function<void(const QString &response)>;

/// Checks the login, then sends the command. `surroundings` is copied; its watch is not used. The result of
/// the outcome is
/// - the result of the login, if CgiProcedure::loginRefusal() has a reason for it; without a text;
/// - NotDone after a stop or the deadline between the login and the command; without a text;
/// - WrongPassword if the web service refuses the account; with a text;
/// - UnknownCertificate or ChangedCertificate if the certificate prevents the command; without a text;
/// - commandFailed after another failure, also after a stop during the transfer; with a text;
/// - Success otherwise; with a response instead of a text.
/// The text or response is the start (up to 4,000 characters) of the text of CgiProcedure::exchange().
[[nodiscard]] DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command,
                                 const ResponseSink &sink = {});

/// The step of a command that cannot be sent: it makes no request. Its outcome has `result`, and as its text
/// "Error:" and `reason`, which is in the user's language.
[[nodiscard]] DeviceStep refusedCgiStep(int result, const QString &reason);

/// Batches::usualPolicy() without a deadline. CgiLimits has separate limits for each type of response, and a
/// recording may take any time.
[[nodiscard]] BatchPolicy commandPolicy(const Batches &batches);

/// True if the step ended with NotDone: the command of the device was not sent.
[[nodiscard]] bool isNotDone(const StepOutcome &outcome);

/// The text of a row or a cell for an outcome of cgiStep() or refusedCgiStep(): the start of the response,
/// "Error:" and the reason, or the text for "not done" in the user's language.
[[nodiscard]] QString cgiResultText(const StepOutcome &outcome);
