#include "cgi/cgibatches.h"

#include "cgi/cgistep.h"
#include "cgi/internal/answerpaths.h"
#include "cgi/internal/longanswers.h"
#include "cgi/internal/workbookresults.h"
#include "cgi/logging.h"
#include "device/devicefactory.h"
#include "device/devicerow.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

const QString family = QStringLiteral("dh");

bool isNotDone(const StepOutcome &outcome)
{
    return outcome.result == resultCode(LoginResult::NotDone);
}

QString resultText(const StepOutcome &outcome)
{
    if (isNotDone(outcome))
        return CgiBatches::tr("未执行");
    const bool isFailure = outcome.result != resultCode(LoginResult::Success);
    if (isFailure)
        return outcome.text.isEmpty() ? failedResult + resultName(outcome.result) : outcome.text;
    return outcome.answer;
}

/// Commands go to addresses. Where two devices have the same one, only one of them is named so.
void nameByAddress(QList<BatchDevice> &devices)
{
    QSet<QString> addresses;
    for (BatchDevice &device : devices) {
        if (!addresses.contains(device.ipport))
            device.name = device.ipport;
        addresses.insert(device.ipport);
    }
}

/// A command has limits of its own for each kind of answer: a recording takes as long as its transfer goes
/// on.
BatchPolicy commandPolicy(const Batches &batches)
{
    BatchPolicy policy = batches.usualPolicy();
    policy.deadline = {};
    return policy;
}

} // namespace

/// The workbook that runs.
class CgiBatches::Workbook
{
public:
    /// Returns why it cannot be used, in the user's language; an empty text when it can.
    [[nodiscard]] QString open(const QString &path)
    {
        QString refusal = m_workbook.open(CommandWorkbook::localPath(path));
        if (refusal.isEmpty())
            m_results.emplace(m_workbook);
        return refusal;
    }

    [[nodiscard]] const std::vector<WorkbookCommand> &commands() const { return m_results->commands(); }
    void name(const QString &line, std::size_t place) { m_places.insert(line, place); }
    [[nodiscard]] const WorkbookCommand &command(const QString &line) const
    {
        return commands()[m_places.value(line)];
    }

    [[nodiscard]] AnswerSink sinkOf(const QString &line) const
    {
        return [answers = m_answers, line](const QString &answer) {
            answers->keep(line, answer.left(CommandWorkbook::longestResult + 1)); // it shows that it is cut
        };
    }

    void take(const QString &line, const QString &beginning)
    {
        m_results->take(command(line), m_answers->whole(line, beginning));
        m_answers->forget(line);
    }

    [[nodiscard]] QString finish() { return m_results->finish(); }

private:
    CommandWorkbook m_workbook;
    std::optional<WorkbookResults> m_results;
    QHash<QString, std::size_t> m_places; ///< of commands, by the names of their lines in the batch
    const std::shared_ptr<LongAnswers> m_answers = std::make_shared<LongAnswers>(); ///< not yet taken
};

CgiBatches::CgiBatches(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                       std::function<CgiAccount()> account, QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches), m_surroundings(std::move(surroundings)),
      m_account(std::move(account)), m_answers(std::make_shared<LongAnswers>())
{
    m_surroundings.checkLogin = m_factory.loginCheck(family);
    m_surroundings.watch = {};
    m_surroundings.ownPath = [paths = std::make_shared<AnswerPaths>()](const QString &path) {
        return paths->own(path);
    };
}

CgiBatches::~CgiBatches()
{
    if (m_workbook) // the program ends during it
        qCInfo(logCgi).noquote() << m_workbook->finish();
}

Batch *CgiBatches::send(const QString &title, const QStringList &identities, const QString &command)
{
    BatchPlan plan = {.family = family,
                      .title = title,
                      .work = QStringLiteral("cgi %1").arg(qHash(command)), // it may hold a password
                      .devices = batchDevices(m_factory, family, identities),
                      .policy = commandPolicy(m_batches)};
    plan.isByAddress = true;
    nameByAddress(plan.devices);
    const QList<BatchDevice> devices = plan.devices;
    plan.stepOf = [this, command, account = m_account()](const BatchDevice &device) {
        return deviceStep(device, command, account);
    };
    plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        QStringList changed;
        for (const auto &[device, outcome] : outcomes) {
            m_factory.updataDeviceInfo(family, DeviceRowKey::result, resultText(outcome), device.identity,
                                       device.ipport);
            changed.append(device.identity);
        }
        Q_EMIT answered(changed);
    };
    Batch *batch = m_batches.start(std::move(plan));
    if (!batch)
        return nullptr;
    for (const BatchDevice &device : devices)
        m_factory.updataDeviceInfo(family, DeviceRowKey::url, command, device.identity, device.ipport);
    return batch;
}

DeviceStep CgiBatches::deviceStep(const BatchDevice &device, const QString &command,
                                  const CgiAccount &account)
{
    const QString address = addressOf(device.ipport, command);
    if (address.isEmpty())
        return refusedCgiStep(tr("没有通往设备网页端口的隧道。"));
    return cgiStep(
        m_surroundings,
        {.url = address, .user = account.user, .password = account.password, .ipport = device.ipport},
        [answers = m_answers, identity = device.identity](const QString &answer) {
            answers->keep(identity, answer);
        });
}

/// A device behind a tunnel has its web page on a port of its own. Empty when there is none, since the usual
/// one would be that of this computer. A device that reports no web port has the usual one.
QString CgiBatches::addressOf(const QString &ipport, const QString &command)
{
    constexpr int usualPort = 80;
    const qsizetype colon = ipport.lastIndexOf(QLatin1Char(':'));
    const QString ip = ipport.left(colon);
    const bool isTunnel = ip == QLatin1String("127.0.0.1");
    const int port = isTunnel ? m_factory.getP2PWebPort(QStringView(ipport).mid(colon + 1).toInt())
                              : m_factory.getDeviceInfo(family, ipport).value(DeviceRowKey::httpport).toInt();
    if (isTunnel && port == 0)
        return {};
    return QStringLiteral("http://%1:%2").arg(ip).arg(port != 0 ? port : usualPort) + command;
}

Batch *CgiBatches::runWorkbook(const QString &title, const QString &path)
{
    if (m_workbook) {
        Q_EMIT workbookEnded(tr("正在执行另一个文件中的CGI命令。"));
        return nullptr;
    }
    auto workbook = std::make_unique<Workbook>();
    const QString refusal = workbook->open(path);
    if (!refusal.isEmpty()) {
        Q_EMIT workbookEnded(refusal);
        return nullptr;
    }
    BatchPlan plan = {
        .family = family, .title = title, .devices = linesOf(*workbook), .policy = commandPolicy(m_batches)};
    plan.stepOf = [this](const BatchDevice &line) {
        return lineStep(line);
    };
    plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        takeLines(outcomes);
    };
    plan.canBeRetried = false; // the file is the user's again at the end
    m_workbook = std::move(workbook);
    Batch *batch = m_batches.start(std::move(plan));
    if (batch)
        connect(batch, &Batch::finished, this, &CgiBatches::finishWorkbook);
    else
        m_workbook.reset();
    return batch;
}

QList<BatchDevice> CgiBatches::linesOf(Workbook &workbook)
{
    QList<BatchDevice> lines;
    QHash<std::pair<QString, QString>, int> accounts; // a number stands for each: the batch keeps no password
    const std::vector<WorkbookCommand> &commands = workbook.commands();
    for (std::size_t place = 0; place < commands.size(); ++place) {
        const WorkbookCommand &command = commands[place];
        BatchDevice line = batchDevice(m_factory, family, command.ipport);
        line.name = tr("第%1行 %2").arg(command.row).arg(command.ipport);
        const int number = accounts.value({command.user, command.password}, int(accounts.size()));
        accounts.insert({command.user, command.password}, number);
        line.login = QString::number(number);
        workbook.name(line.name, place);
        lines.append(line);
    }
    return lines;
}

DeviceStep CgiBatches::lineStep(const BatchDevice &line)
{
    const WorkbookCommand &command = m_workbook->command(line.name);
    if (!command.refusal.isEmpty())
        return refusedCgiStep(command.refusal);
    return cgiStep(
        m_surroundings,
        {.url = command.url, .user = command.user, .password = command.password, .ipport = command.ipport},
        m_workbook->sinkOf(line.name));
}

void CgiBatches::takeLines(const QList<BatchOutcome> &outcomes)
{
    for (const auto &[line, outcome] : outcomes) {
        if (!isNotDone(outcome))
            m_workbook->take(line.name, resultText(outcome));
    }
}

void CgiBatches::finishWorkbook()
{
    const std::unique_ptr<Workbook> workbook = std::move(m_workbook);
    Q_EMIT workbookEnded(workbook->finish());
}

QString CgiBatches::answerOf(const QString &identity, const QString &result) const
{
    return m_answers->whole(identity, result);
}

QStringList CgiBatches::failuresOf(Batch *batch) const
{
    QList<std::pair<QString, QString>> failures; // result and address
    if (!batch)
        return {};
    for (const Batch::Entry &entry : batch->entries()) {
        if (entry.outcome.result != resultCode(LoginResult::Success))
            failures.append({resultText(entry.outcome).simplified(), entry.device.ipport});
    }
    std::stable_sort(failures.begin(), failures.end(),
                     [](const auto &left, const auto &right) { return left.first < right.first; });
    QStringList lines;
    for (const auto &[result, address] : std::as_const(failures))
        lines.append(address + QStringLiteral("  ") + result);
    return lines;
}
