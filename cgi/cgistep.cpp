#include "cgi/cgistep.h"

#include "cgi/internal/longanswers.h"

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
        const QString answer = CgiProcedure(watched, {}).send(command.url, command.user, command.password);
        if (sink)
            sink(answer);
        const QString beginning = answer.left(LongAnswers::longestBeginning);
        if (answer.startsWith(failedResult))
            return StepOutcome{.result = commandFailed, .text = beginning};
        return StepOutcome{.result = resultCode(LoginResult::Success), .text = {}, .answer = beginning};
    };
}

DeviceStep refusedCgiStep(const QString &reason)
{
    return [reason](const StepControl &) {
        return StepOutcome{.result = commandFailed, .text = failedResult + reason};
    };
}
