#include "commandline/devicesession.h"

#include "commandline/batchrun.h"
#include "commandline/interruption.h"
#include "device/forms/encodeform.h"
#include "device/models/batchreport.h"
#include "device/registry/devicefamily.h"
#include "device/registry/mapkeys.h"
#include "device/store/devicerow.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace commandline {

namespace {

/// Collects the failures that the operations of a session report by signals.
class SessionFailures
{
public:
    explicit SessionFailures(const CDeviceFactory &factory)
    {
        QObject::connect(&factory, &CDeviceFactory::signalGetDeviceCapRet, &m_receiver, [this](int result) {
            if (result != 0 && m_outcome.text.isEmpty())
                m_outcome = {.result = EncodeForm::isDeviceAway(result)
                                           ? resultCode(LoginResult::NetworkFailure)
                                           : refusedByDevice,
                             .text = EncodeForm::failureName(result)};
        });
        QObject::connect(&factory, &CDeviceFactory::signalConfirmEncodeConfig, &m_receiver,
                         [this](const QString &refused) {
                             if (!refused.isEmpty())
                                 m_outcome = {.result = refusedByDevice, .text = refused.simplified()};
                         });
    }

    [[nodiscard]] const StepOutcome &outcome() const { return m_outcome; }

private:
    QObject m_receiver;
    StepOutcome m_outcome;
};

bool isRefusedAccount(int result)
{
    return result == resultCode(LoginResult::WrongPassword) ||
           result == resultCode(LoginResult::NoSuchAccount) ||
           result == resultCode(LoginResult::AccountLocked);
}

} // namespace

SessionResult workInSession(const CommandContext &context, const QJsonObject &row, const SessionJob &job)
{
    if (!row.value(DeviceRowKey::state).toBool(true))
        return {.outcome = {.result = BatchReport::NotInitialised, .text = {}}, .value = {}};
    const QVariantMap account = context.factory.accountOf(dhFamily, rowName(row));
    const int login = context.factory.findAndLoginDevice(dhFamily, row.value(DeviceRowKey::ipport).toString(),
                                                         account.value(AccountKey::account).toString(),
                                                         account.value(AccountKey::password).toString());
    if (login != resultCode(LoginResult::Success))
        return {.outcome = {.result = login, .text = {}}, .value = {}};
    const SessionFailures failures(context.factory);
    const PageOutcome outcome = context.factory.backEnd(dhFamily)->sessionStep(job)(StepControl());
    if (outcome.take)
        outcome.take();
    return {.outcome = failures.outcome(), .value = outcome.value};
}

StepOutcome noChannel(int channel)
{
    return {.result = resultCode(LoginResult::InvalidValue),
            .text = u"the device has no channel %1"_s.arg(channel + 1)};
}

void DeviceSequence::run(
    const QList<QJsonObject> &rows, const std::function<StepOutcome(const QJsonObject &row)> &work,
    const std::function<void(const QJsonObject &row, const StepOutcome &outcome)> &take) const
{
    const int refusalsToEnd = m_context.batches.usualPolicy().wrongPasswordsInARow;
    int refusals = 0;
    qsizetype done = 0;
    Interruption interruption([] {});
    for (const QJsonObject &row : rows) {
        QCoreApplication::processEvents(); // an interruption
        const bool isEnded = interruption.isRequested() || refusals >= refusalsToEnd;
        const StepOutcome outcome =
            isEnded ? StepOutcome{.result = BatchReport::NotDone, .text = {}} : work(row);
        if (isRefusedAccount(outcome.result))
            ++refusals;
        else if (outcome.result == BatchReport::Succeeded)
            refusals = 0;
        take(row, outcome);
        m_context.terminal.writeProgress(
            u"[%1/%2] %3: %4"_s.arg(++done)
                .arg(rows.size())
                .arg(row.value(DeviceRowKey::ipport).toString(), outcomeWord(outcome.result)) +
            (outcome.text.isEmpty() ? QString() : u" - "_s + terminalText(outcome.text)));
    }
}

} // namespace commandline
