// A command to a device as a step of a batch.
#pragma once

#include "cgi/cgiprocedure.h"
#include "device/devicestep.h"

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
/// text the beginning of what CgiProcedure::run() returns. A stop ends the transfer at once; before the
/// command it leaves the device not done. `surroundings` are copied, their watch is not used.
[[nodiscard]] DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command,
                                 const AnswerSink &sink = {});

/// Of a command that cannot be sent; `reason` is in the user's language.
[[nodiscard]] DeviceStep refusedCgiStep(const QString &reason);
