// Tracks the upgrade documents whose lines are being upgraded.
#pragma once

#include "device/dh/upgrade/upgradedocument.h"

#include <QHash>
#include <QList>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

/// Collects the results of upgrades that were started from documents, and writes them when the last upgrade
/// of a document has ended. note() may be called on any thread, all other functions on the main thread only.
class UpgradeDocuments
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeDocuments)
public:
    /// Progress of a document.
    struct Schedule
    {
        QString name; ///< name passed to add()
        int percent = 0;
    };

    /// Number of lines of all documents since begin().
    struct Progress
    {
        int done = 0; ///< including refused lines
        int total = 0;
    };

    /// Runs `write` on another thread, then `written` on the main thread.
    using Writer =
        std::function<void(const std::function<void()> &write, const std::function<void()> &written)>;

    explicit UpgradeDocuments(Writer writer) : m_writer(std::move(writer)) {}

    /// Clears the results of earlier documents.
    void begin();

    /// Adds an opened document. `name` identifies it in Schedule.
    void add(const QString &name, std::unique_ptr<UpgradeDocument> document);

    /// Adds the reason of a refused document to resultText().
    void addRefused(const QString &name, const QString &reason);

    // Functions for the document added last:

    /// Tracks the upgrade `key` of this line. Keys are unique in a document.
    void follow(const QString &key, const UpgradeDocumentLine &line);

    /// Sets the result of a line that is not upgraded. `row` is its row in the sheet.
    void refuse(int row, const QString &reason);

    /// Tracks a repeated upgrade of the line with this key. Its result is written to the document's file
    /// again, which may have changed since. Returns false if no document has the line, if it is being
    /// upgraded, or while other documents are open.
    bool repeat(const QString &key);

    /// Sets the state of an upgrade. Ignored if no document tracks the key. Any thread.
    void note(const QString &key, int result, int percent, const QString &text);

    /// Returns the documents whose progress has changed since the last call. Starts writing documents whose
    /// upgrades have ended.
    [[nodiscard]] QList<Schedule> update();

    [[nodiscard]] Progress progress() const; ///< of all documents since begin()

    /// Whether documents have running upgrades or are being written.
    [[nodiscard]] bool hasOpen() const { return !m_documents.empty() || m_beingWritten > 0; }

    /// Messages for the user, one line for each document; empty while documents are open.
    [[nodiscard]] QString resultText() const { return hasOpen() ? QString() : m_result; }

    /// The number of successful upgrades in finished documents.
    [[nodiscard]] int succeeded() const { return m_succeeded; }

private:
    struct Line
    {
        int row = 0;
        QString ipport;
        int result = UpgradeTools::Waiting;
        int share = 0; ///< contribution to the document's progress, 0 to 100
        QString text;
        bool isNew = true; ///< the result is not written to the file yet
    };
    struct Document
    {
        QString name;
        QString path;                              ///< file with the results
        std::unique_ptr<UpgradeDocument> workbook; ///< null after the results are written
        QHash<QString, Line> lines;                ///< by key
        int refused = 0;                           ///< number of lines that are not upgraded
        qsizetype running = 0;                     ///< number of lines with a running upgrade
        qsizetype shareSum = 0;
        int reportedPercent = -1; ///< last reported progress
        QString outcome;          ///< message about the writing
    };

    void clearResults();
    /// Any thread.
    static void write(Document &document);
    void finish(const std::shared_ptr<Document> &document);

    const Writer m_writer;
    mutable std::mutex m_mutex; ///< guards the documents, except their workbooks (main thread, then writer)
    std::vector<std::shared_ptr<Document>> m_documents;
    std::vector<std::shared_ptr<Document>> m_written; ///< finished documents, for repeat(); main thread only
    QList<Schedule> m_writtenProgress;                ///< progress of written documents, for update()
    int m_beingWritten = 0;
    int m_finishedLines = 0; ///< lines of documents without running upgrades, including refused ones
    QString m_result;
    int m_succeeded = 0;
};
