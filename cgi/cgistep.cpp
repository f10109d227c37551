#include "cgi/cgistep.h"

#include "cgi/cgibatches.h"
#include "cgi/internal/longanswers.h"

namespace {

int failureOf(const CgiAnswer &answer)
{
    if (!answer.certificateRefusal)
        return commandFailed;
    return resultCode(answer.certificateRefusal == sdk::CertificateVerdict::Changed
                          ? LoginResult::ChangedCertificate
                          : LoginResult::UnknownCertificate);
}

} // namespace

DeviceStep cgiStep(const CgiSurroundings &surroundings, const CgiCommand &command, const AnswerSink &sink)
{
    return [surroundings, command, sink](const StepControl &control) {
        const int login = surroundings.checkLogin(command.ipport, command.user, command.password);
        const QString refusal = CgiProcedure::loginRefusal(login);
        if (!refusal.isEmpty())
            return StepOutcome{.result = login, .text = failedResult + refusal};
        if (control.shouldEnd())
            return StepOutcome{.result = resultCode(LoginResult::NotDone), .text = {}};
        CgiSurroundings watched = surroundings;
        watched.watch = [&control] {
            return !control.shouldEnd();
        };
        const CgiAnswer answer =
            CgiProcedure(watched, {}).exchange(command.url, command.user, command.password);
        if (sink)
            sink(answer.text);
        const QString beginning = answer.text.left(LongAnswers::longestBeginning);
        if (answer
                .isLoginRefused) // further commands of the device would count towards the lock of the account
            return StepOutcome{.result = resultCode(LoginResult::WrongPassword), .text = beginning};
        if (answer.text.startsWith(failedResult))
            return StepOutcome{
                .result = failureOf(answer), .text = beginning, .isUnanswered = answer.isUnanswered};
        return StepOutcome{.result = resultCode(LoginResult::Success), .text = {}, .answer = beginning};
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
        return CgiBatches::tr("未执行");
    if (outcome.result == resultCode(LoginResult::Success))
        return outcome.answer;
    return outcome.text.isEmpty() ? failedResult + resultName(outcome.result) : outcome.text;
}
