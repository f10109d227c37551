#include "cgi/cgistep.h"

#include "cgi/internal/longresponses.h"

#include <QCoreApplication>

namespace {

int certificateResult(sdk::CertificateVerdict verdict)
{
    return resultCode(verdict == sdk::CertificateVerdict::Changed ? LoginResult::ChangedCertificate
                                                                  : LoginResult::UnknownCertificate);
}

} // namespace

DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command, const ResponseSink &sink)
{
    return [surroundings, command, sink](const StepControl &control) {
        const int login = surroundings.checkLogin(command.ipport, command.user, command.password);
        if (!CgiProcedure::loginRefusal(login).isEmpty()) // the result needs no further text
            return StepOutcome{.result = login, .text = {}};
        if (control.shouldEnd())
            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = {}};
        CgiSurroundings watched = surroundings;
        watched.watch = [&control] {
            return !control.shouldEnd();
        };
        const CgiResponse response =
            CgiProcedure(watched, {}).exchange(command.url, command.user, command.password);
        if (sink)
            sink(response.text);
        const QString beginning = response.text.left(LongResponses::longestBeginning);
        if (response
                .isLoginRefused) // further commands of the device would count towards the lock of the account
            return StepOutcome{.result = resultCode(LoginResult::WrongPassword), .text = beginning};
        if (response.certificateRefusal)
            return StepOutcome{.result = certificateResult(*response.certificateRefusal),
                               .text = {},
                               .hasNoResponse = response.hasNoResponse};
        if (response.text.startsWith(failedResult))
            return StepOutcome{
                .result = commandFailed, .text = beginning, .hasNoResponse = response.hasNoResponse};
        return StepOutcome{.result = resultCode(LoginResult::Success), .text = {}, .response = beginning};
    };
}

DeviceStep refusedCgiStep(int result, const QString &reason)
{
    return [result, reason](const StepControl &) {
        return StepOutcome{.result = result, .text = failedResult + reason};
    };
}

BatchPolicy commandPolicy(const Batches &batches)
{
    BatchPolicy policy = batches.usualPolicy();
    policy.deadline = {};
    return policy;
}

bool isNotDone(const StepOutcome &outcome)
{
    return outcome.result == resultCode(LoginResult::NotDone);
}

QString cgiResultText(const StepOutcome &outcome)
{
    if (isNotDone(outcome))
        return QCoreApplication::translate("CgiBatches", "未执行");
    if (outcome.result == resultCode(LoginResult::Success))
        return outcome.response;
    if (!outcome.text.isEmpty())
        return outcome.text;
    const QString refusal = CgiProcedure::loginRefusal(outcome.result);
    return failedResult + (refusal.isEmpty() ? resultName(outcome.result) : refusal);
}
