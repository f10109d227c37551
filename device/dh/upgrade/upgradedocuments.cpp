#include "device/dh/upgrade/upgradedocuments.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

void UpgradeDocuments::begin()
{
    m_written.clear();
    clearResults();
}

void UpgradeDocuments::clearResults()
{
    m_result.clear();
    m_finishedLines = 0;
    m_succeeded = 0;
}

void UpgradeDocuments::add(const QString &name, std::unique_ptr<UpgradeDocument> document)
{
    auto added = std::make_shared<Document>();
    added->name = name;
    added->workbook = std::move(document);
    const std::lock_guard lock(m_mutex);
    m_documents.push_back(std::move(added));
}

void UpgradeDocuments::addRefused(const QString &name, const QString &reason)
{
    m_result += tr("%1：%2").arg(QFileInfo(name).fileName(), reason) + QLatin1Char('\n');
}

void UpgradeDocuments::follow(const QString &key, const UpgradeDocumentLine &line)
{
    const std::lock_guard lock(m_mutex);
    m_documents.back()->lines.insert(key, {.row = line.row, .ipport = line.ipport, .text = {}});
    ++m_documents.back()->running;
}

bool UpgradeDocuments::repeat(const QString &key)
{
    const auto hasLine = [&key](const std::shared_ptr<Document> &document) {
        return document->lines.contains(key);
    };
    if (!hasOpen()) {
        const auto written = std::find_if(m_written.begin(), m_written.end(), hasLine);
        if (written == m_written.end())
            return false;
        clearResults();
        (*written)->reportedPercent = -1;
        const std::lock_guard lock(m_mutex);
        m_documents.push_back(*written);
        m_written.erase(written);
    }
    const std::lock_guard lock(m_mutex);
    const auto open = std::find_if(m_documents.begin(), m_documents.end(), hasLine);
    if (open == m_documents.end())
        return false;
    Line &line = (*open)->lines[key];
    if (UpgradeTools::isRunning(line.result))
        return false;
    (*open)->shareSum -= std::exchange(line.share, 0);
    ++(*open)->running;
    line.result = UpgradeTools::Waiting;
    line.isNew = true;
    return true;
}

void UpgradeDocuments::refuse(int row, const QString &reason)
{
    m_documents.back()->workbook->setResult(row, reason);
    ++m_documents.back()->refused;
}

void UpgradeDocuments::note(const QString &key, int result, int percent, const QString &text)
{
    const std::lock_guard lock(m_mutex);
    for (const std::shared_ptr<Document> &document : m_documents) {
        const auto line = document->lines.find(key);
        // A later upgrade of the device does not change the result while the document is open.
        if (line == document->lines.end() || !UpgradeTools::isRunning(line->result))
            continue;
        const bool isRunning = UpgradeTools::isRunning(result);
        const int share = isRunning ? percent : 100;
        document->running -= isRunning ? 0 : 1;
        document->shareSum += share - line->share;
        line->share = share;
        line->result = result;
        line->text = text;
    }
}

QList<UpgradeDocuments::Schedule> UpgradeDocuments::update()
{
    QList<Schedule> changed = std::exchange(m_writtenProgress, {});
    std::vector<std::shared_ptr<Document>> done;
    {
        const std::lock_guard lock(m_mutex);
        for (const std::shared_ptr<Document> &document : m_documents) {
            // 100 % is reported only after the results are written.
            const int percent =
                document->running == 0
                    ? 100
                    : static_cast<int>(std::min<qsizetype>(document->shareSum / document->lines.size(), 99));
            if (percent != std::exchange(document->reportedPercent, percent) && percent < 100)
                changed.append({document->name, percent});
        }
        const auto open = std::stable_partition(
            m_documents.begin(), m_documents.end(),
            [](const std::shared_ptr<Document> &document) { return document->reportedPercent < 100; });
        std::move(open, m_documents.end(), std::back_inserter(done));
        m_documents.erase(open, m_documents.end());
    }
    m_beingWritten += static_cast<int>(done.size());
    for (const std::shared_ptr<Document> &document : done) {
        m_finishedLines += static_cast<int>(document->lines.size()) + document->refused;
        m_writer([document] { write(*document); }, [this, document] { finish(document); });
    }
    return changed;
}

UpgradeDocuments::Progress UpgradeDocuments::progress() const
{
    Progress progress = {.done = m_finishedLines, .total = m_finishedLines};
    const std::lock_guard lock(m_mutex);
    for (const std::shared_ptr<Document> &document : m_documents) {
        const auto lines = static_cast<int>(document->lines.size());
        progress.done += lines - static_cast<int>(document->running) + document->refused;
        progress.total += lines + document->refused;
    }
    return progress;
}

void UpgradeDocuments::write(Document &document)
{
    QHash<int, QString> addresses; // by row, of a file that is written again
    const bool isAgain = !document.workbook;
    if (isAgain) {
        document.workbook = std::make_unique<UpgradeDocument>();
        const QString refusal = document.workbook->open(document.path);
        if (refusal.isEmpty()) {
            for (const UpgradeDocumentLine &line : document.workbook->lines())
                addresses.insert(line.row, line.ipport);
        } else {
            document.outcome = UpgradeDocument::tr("升级结果无法保存：%1").arg(refusal);
            document.workbook.reset();
            return;
        }
    }
    for (const Line &line : std::as_const(document.lines)) {
        const bool isThere = !isAgain || addresses.value(line.row) == line.ipport;
        if (line.isNew && isThere)
            document.workbook->setResult(line.row, line.text);
    }
    document.outcome = document.workbook->keep();
    for (Line &line : document.lines)
        line.isNew = line.isNew && !document.workbook->isKept();
    document.path = document.workbook->path();
    document.workbook.reset();
}

void UpgradeDocuments::finish(const std::shared_ptr<Document> &document)
{
    --m_beingWritten;
    m_written.push_back(document);
    m_writtenProgress.append({document->name, 100});
    const auto lines = static_cast<int>(document->lines.size());
    const auto succeeded = static_cast<int>(
        std::count_if(document->lines.cbegin(), document->lines.cend(),
                      [](const Line &line) { return line.result == UpgradeTools::Success; }));
    m_succeeded += succeeded;
    m_result += tr("%1：成功%2台，失败%3台。")
                    .arg(QFileInfo(document->name).fileName())
                    .arg(succeeded)
                    .arg(lines - succeeded + document->refused) +
                document->outcome + QLatin1Char('\n');
}
