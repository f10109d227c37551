#include "cgi/cgiworkbooks.h"

#include "cgi/cgistep.h"
#include "cgi/internal/longresponses.h"
#include "cgi/internal/workbookresults.h"
#include "cgi/logging.h"
#include "device/registry/devicefactory.h"
#include "device/registry/devicefamily.h"
#include "device/registry/deviceimport.h"
#include "sdk/threadpriority.h"
#include "sheets/filesheetengine.h"

#include <QFileInfo>
#include <QSet>

#include <memory>
#include <optional>
#include <utility>

/// A workbook with the names of its lines.
class CgiWorkbooks::Workbook
{
public:
    /// Returns the reason why it cannot be used, in the user's language; empty on success.
    [[nodiscard]] QString open(const QString &path)
    {
        const QString file = CommandWorkbook::localPath(path);
        m_changed = QFileInfo(file).lastModified();
        QString refusal = m_workbook.open(file);
        if (!refusal.isEmpty())
            return refusal;
        m_results.emplace(m_workbook);
        for (std::size_t index = 0; index < commands().size(); ++index)
            m_indices.insert(nameOf(commands()[index]), index);
        return {};
    }

    [[nodiscard]] static QString nameOf(const WorkbookCommand &command)
    {
        return CgiWorkbooks::tr("第%1行 %2").arg(command.row).arg(command.ipport);
    }

    /// True if the file has been changed since it was opened: results would overwrite the change.
    [[nodiscard]] bool isOutdated() const { return QFileInfo(m_workbook.path()).lastModified() != m_changed; }

    // Constant while the workbook is open.
    [[nodiscard]] const std::vector<WorkbookCommand> &commands() const { return m_results->commands(); }
    [[nodiscard]] const WorkbookCommand &command(const QString &line) const
    {
        return commands()[m_indices.value(line)];
    }

    [[nodiscard]] ResponseSink sinkOf(const QString &line) const
    {
        return [responses = m_responses, line](const QString &response) {
            responses->keep(line,
                            response.left(CommandWorkbook::longestResult + 1)); // shows that it is truncated
        };
    }

    void take(const QString &line, const QString &beginning)
    {
        m_results->take(command(line), m_responses->complete(line, beginning));
        m_responses->remove(line);
    }

    [[nodiscard]] QString finish() { return m_results->finish(); }

private:
    /// Not with a spreadsheet application, which only the thread that has started it may use: the file thread
    /// ends after some time without work, and the destructor of CgiWorkbooks saves the results.
    CommandWorkbook m_workbook{std::make_unique<sheets::FileSheetEngine>()};
    QDateTime m_changed; ///< time of the file's last change
    std::optional<WorkbookResults> m_results;
    QHash<QString, std::size_t> m_indices; ///< indices of commands, by the names of their lines
    const std::shared_ptr<LongResponses> m_responses = std::make_shared<LongResponses>(); ///< not yet written
};

CgiWorkbooks::CgiWorkbooks(CDeviceFactory &factory, Batches &batches, CgiSurroundings surroundings,
                           QObject *parent)
    : QObject(parent), m_factory(factory), m_batches(batches), m_surroundings(std::move(surroundings))
{
    m_files.setMaxThreadCount(1);
}

CgiWorkbooks::~CgiWorkbooks()
{
    m_files.waitForDone();
    if (m_workbook && m_isRunning && m_work == 0) // the application ends during the batch
        qCInfo(logCgi).noquote() << m_workbook->finish();
}

void CgiWorkbooks::read(const QString &path)
{
    if (m_isRunning || m_work != 0) {
        Q_EMIT ended(tr("正在执行另一个文件中的CGI命令。"));
        return;
    }
    m_work = m_factory.busyState()->begin(tr("读取表格文件"), BusyState::Rows);
    m_files.start([this, path] {
        sdk::giveWayToWindow();
        const auto workbook = std::make_shared<Workbook>();
        const QString refusal = workbook->open(path);
        QMetaObject::invokeMethod(
            this, [this, workbook, refusal] { takeRead(workbook, refusal); }, Qt::QueuedConnection);
    });
}

void CgiWorkbooks::takeRead(std::shared_ptr<Workbook> workbook, const QString &refusal)
{
    m_factory.busyState()->end(std::exchange(m_work, 0));
    m_workbook.reset();
    if (!refusal.isEmpty()) {
        Q_EMIT ended(refusal);
        return;
    }
    m_workbook = std::move(workbook);
    QVariantList lines;
    for (const WorkbookCommand &command : m_workbook->commands())
        lines.append(QVariantMap{{QStringLiteral("name"), Workbook::nameOf(command)},
                                 {QStringLiteral("title"), tr("第%1行").arg(command.row)},
                                 {QStringLiteral("ipport"), command.ipport},
                                 {QStringLiteral("action"), command.command},
                                 {QStringLiteral("hindrance"), command.refusal}});
    Q_EMIT wasRead(lines);
}

Batch *CgiWorkbooks::run(const QString &title, const QStringList &lines)
{
    if (!m_workbook || m_isRunning || m_work != 0)
        return nullptr;
    if (m_workbook->isOutdated()) {
        m_workbook.reset();
        Q_EMIT ended(tr("文件已被修改，请重新打开。"));
        return nullptr;
    }
    BatchPlan plan = {.family = dhFamily,
                      .title = title,
                      .devices = linesOf(*m_workbook, QSet<QString>(lines.cbegin(), lines.cend())),
                      .policy = commandPolicy(m_batches)};
    plan.stepOf = [this](const BatchDevice &line) {
        return lineStep(line);
    };
    plan.takeOutcomes = [this](const QList<BatchOutcome> &outcomes) {
        takeLines(outcomes);
    };
    plan.canBeRetried = false; // the file is released at the end
    m_isRunning = true;
    Batch *batch = m_batches.start(std::move(plan));
    m_isRunning = batch != nullptr;
    if (batch)
        connect(batch, &Batch::finished, this, &CgiWorkbooks::finish);
    return batch;
}

QList<BatchDevice> CgiWorkbooks::linesOf(const Workbook &workbook, const QSet<QString> &requested) const
{
    QList<BatchDevice> lines;
    QHash<std::pair<QString, QString>, int> accounts; // a number for each
    for (const WorkbookCommand &command : workbook.commands()) {
        const QString name = Workbook::nameOf(command);
        if (!requested.contains(name))
            continue;
        BatchDevice line = batchDevice(m_factory, dhFamily, command.ipport);
        line.name = name;
        const int number = accounts.value({command.user, command.password}, int(accounts.size()));
        accounts.insert({command.user, command.password}, number);
        line.login = QString::number(number);
        lines.append(line);
    }
    return lines;
}

DeviceStep CgiWorkbooks::lineStep(const BatchDevice &line) const
{
    const WorkbookCommand &command = m_workbook->command(line.name);
    if (!command.refusal.isEmpty())
        return refusedCgiStep(unusableLine, command.refusal);
    return cgiStep(
        m_surroundings,
        {.url = command.url, .user = command.user, .password = command.password, .ipport = command.ipport},
        m_workbook->sinkOf(line.name));
}

void CgiWorkbooks::takeLines(const QList<BatchOutcome> &outcomes)
{
    m_files.start([workbook = m_workbook, outcomes] {
        sdk::giveWayToWindow();
        for (const auto &[line, outcome] : outcomes) {
            if (!isNotDone(outcome))
                workbook->take(line.name, cgiResultText(outcome));
        }
    });
}

void CgiWorkbooks::finish()
{
    m_work = m_factory.busyState()->begin(tr("保存表格文件"), BusyState::Rows);
    m_files.start([this, workbook = m_workbook] {
        sdk::giveWayToWindow();
        const QString text = workbook->finish();
        QMetaObject::invokeMethod(
            this, [this, text] { reportEnd(text); }, Qt::QueuedConnection);
    });
}

void CgiWorkbooks::reportEnd(const QString &text)
{
    m_factory.busyState()->end(std::exchange(m_work, 0));
    m_isRunning = false;
    m_workbook.reset();
    Q_EMIT ended(text);
}
