#include "device/dh/upgradedocuments.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

void UpgradeDocuments::begin()
{
    m_result.clear();
    m_finishedLines = 0;
    m_succeeded = 0;
}

void UpgradeDocuments::add(const QString &name, std::unique_ptr<UpgradeDocument> document)
{
    auto added = std::make_unique<Document>();
    added->name = name;
    added->workbook = std::move(document);
    const std::lock_guard lock(m_mutex);
    m_documents.push_back(std::move(added));
}

void UpgradeDocuments::addRefused(const QString &name, const QString &reason)
{
    m_result += tr("%1：%2").arg(QFileInfo(name).fileName(), reason) + QLatin1Char('\n');
}

void UpgradeDocuments::follow(const QString &key, int row)
{
    const std::lock_guard lock(m_mutex);
    m_documents.back()->lines.insert(key, {.row = row, .text = {}});
    ++m_documents.back()->running;
}

void UpgradeDocuments::refuse(int row, const QString &reason)
{
    m_documents.back()->workbook->setResult(row, reason);
    ++m_documents.back()->refused;
}

void UpgradeDocuments::note(const QString &key, int result, int percent, const QString &text)
{
    const std::lock_guard lock(m_mutex);
    for (const std::unique_ptr<Document> &document : m_documents) {
        const auto line = document->lines.find(key);
        // The device may be upgraded once more while others of the document are not done.
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
    QList<Schedule> changed;
    std::vector<std::unique_ptr<Document>> done;
    {
        const std::lock_guard lock(m_mutex);
        for (const std::unique_ptr<Document> &document : m_documents) {
            // Only what is in the file is done.
            const int percent =
                document->running == 0
                    ? 100
                    : static_cast<int>(std::min<qsizetype>(document->shareSum / document->lines.size(), 99));
            if (percent != std::exchange(document->toldPercent, percent))
                changed.append({document->name, percent});
        }
        const auto open = std::stable_partition(
            m_documents.begin(), m_documents.end(),
            [](const std::unique_ptr<Document> &document) { return document->toldPercent < 100; });
        std::move(open, m_documents.end(), std::back_inserter(done));
        m_documents.erase(open, m_documents.end());
    }
    for (const std::unique_ptr<Document> &document : done)
        finish(*document);
    return changed;
}

UpgradeDocuments::Progress UpgradeDocuments::progress() const
{
    Progress progress = {.done = m_finishedLines, .total = m_finishedLines};
    const std::lock_guard lock(m_mutex);
    for (const std::unique_ptr<Document> &document : m_documents) {
        const auto lines = static_cast<int>(document->lines.size());
        progress.done += lines - static_cast<int>(document->running) + document->refused;
        progress.total += lines + document->refused;
    }
    return progress;
}

void UpgradeDocuments::finish(Document &document)
{
    m_finishedLines += static_cast<int>(document.lines.size()) + document.refused;
    int succeeded = 0;
    for (const Line &line : std::as_const(document.lines)) {
        document.workbook->setResult(line.row, line.text);
        succeeded += line.result == UpgradeTools::Success ? 1 : 0;
    }
    m_succeeded += succeeded;
    const int failed = static_cast<int>(document.lines.size()) - succeeded + document.refused;
    m_result +=
        tr("%1：成功%2台，失败%3台。").arg(QFileInfo(document.name).fileName()).arg(succeeded).arg(failed) +
        document.workbook->keep() + QLatin1Char('\n');
}
