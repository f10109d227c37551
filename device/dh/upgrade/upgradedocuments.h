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
/// of a document has ended. A document is open from add() until its results are written, also if that fails.
/// note() may be called on any thread, all other functions on the main thread only.
class UpgradeDocuments
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeDocuments)
public:
    /// Progress of a document.
    struct Schedule
    {
        QString name;    ///< name passed to add()
        int percent = 0; ///< 0 to 100; 100 when the results are written, or could not be
    };

    /// Numbers of lines of all documents since the results of earlier documents were last cleared, by begin()
    /// or repeat().
    struct Progress
    {
        int done = 0; ///< including refused lines
        int total = 0;
    };

    /// Runs `write` on another thread, then `written` on the main thread.
    using Writer =
        std::function<void(const std::function<void()> &write, const std::function<void()> &written)>;

    /// This object must outlive the functions that it passes to `writer`.
    explicit UpgradeDocuments(Writer writer) : m_writer(std::move(writer)) {}

    /// Clears the results of earlier documents, which cannot be repeated then. Must not be called while
    /// documents are open.
    void begin();

    /// Adds an opened document, which must not be null. `name` (its path as the caller knows it) identifies
    /// it in Schedule. update() starts the writing of a document without running upgrades: the lines must be
    /// added before.
    void add(const QString &name, std::unique_ptr<UpgradeDocument> document);

    /// Adds a line with the file name of a refused document and the reason to resultText().
    void addRefused(const QString &name, const QString &reason);

    // Functions for the lines of the document added last, before the next update():

    /// Tracks the upgrade of this line. `key` is UpgradeOrder::key: the name of the row, or address and port
    /// without a row; it must be unique in the document.
    void follow(const QString &key, const UpgradeDocumentLine &line);

    /// Sets the result of a line that is not upgraded; it counts as failed. `row` is its row in the sheet.
    void refuse(int row, const QString &reason);

    /// Tracks a repeated upgrade of the line with this key, from now on until its end. Its result is written
    /// to the document's file again. If the file was changed in the meantime and its row has another
    /// address, the row is not written. Clears the results of earlier documents if none is open. Returns
    /// false, and tracks nothing, if no document since begin() has the line, if the line is being upgraded,
    /// while its document is being written, or while only other documents are open.
    bool repeat(const QString &key);

    /// Sets the state of an upgrade: an UpgradeTools::Result, its progress (0 to 100) and its text for the
    /// result cell. Ignored if no open document tracks the key, or if its upgrade has ended. Any thread.
    void note(const QString &key, int result, int percent, const QString &text);

    /// Returns the documents whose progress has changed since the last call. Starts the writing of documents
    /// whose upgrades have ended. Called after changes by note() and after each writing.
    [[nodiscard]] QList<Schedule> update();

    [[nodiscard]] Progress progress() const;

    /// Whether documents have running upgrades or are being written.
    [[nodiscard]] bool hasOpen() const { return !m_documents.empty() || m_beingWritten > 0; }

    /// Messages for the user: for each document of Progress a line with the numbers of successes and
    /// failures and the result file, or the reason of its refusal. Empty while documents are open.
    [[nodiscard]] QString resultText() const { return hasOpen() ? QString() : m_result; }

    /// The number of successful upgrades in those documents of Progress whose writing has ended.
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
