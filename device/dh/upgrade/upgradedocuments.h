// The documents whose lines are being upgraded.
#pragma once

#include "device/dh/upgrade/upgradedocument.h"

#include <QHash>
#include <QList>

#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

/// Follows the upgrades that came from documents, and has their results written when the last of a document
/// is there. note() may be called from any thread, the rest on the scene's.
class UpgradeDocuments
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeDocuments)
public:
    struct Schedule
    {
        QString name; ///< as the document was added
        int percent = 0;
    };

    /// Lines, of all documents since begin().
    struct Progress
    {
        int done = 0; ///< also those that are refused
        int total = 0;
    };

    /// Runs `write` on another thread, and then `written` on the scene's.
    using Writer =
        std::function<void(const std::function<void()> &write, const std::function<void()> &written)>;

    explicit UpgradeDocuments(Writer writer) : m_writer(std::move(writer)) {}

    /// Forgets the results of earlier documents.
    void begin();

    /// Adds an opened document.
    void add(const QString &name, std::unique_ptr<UpgradeDocument> document);

    /// Says why a document has no results.
    void addRefused(const QString &name, const QString &reason);

    // Of the document that was added last:

    /// This line of it is upgraded under this key, which no other of its lines has.
    void follow(const QString &key, const UpgradeDocumentLine &line);

    /// Its line in this row is not upgraded.
    void refuse(int row, const QString &reason);

    /// The line under this key is upgraded once more. Its result goes into the file again, which may have
    /// been changed meanwhile. Returns false for a line that no document has or that is being upgraded, and
    /// while other documents are.
    bool repeat(const QString &key);

    /// An upgrade has this result and text; of one that no document has named nothing is kept.
    void note(const QString &key, int result, int percent, const QString &text);

    /// How far the documents are that have changed. Those that are done begin to be written; what comes of
    /// that stands in resultText() afterwards.
    [[nodiscard]] QList<Schedule> update();

    [[nodiscard]] Progress progress() const;

    /// Whether documents are upgraded or written.
    [[nodiscard]] bool hasOpen() const { return !m_documents.empty() || m_beingWritten > 0; }

    /// Empty while documents are open.
    [[nodiscard]] QString resultText() const { return hasOpen() ? QString() : m_result; }

    /// How many devices of the documents that are done were upgraded.
    [[nodiscard]] int succeeded() const { return m_succeeded; }

private:
    struct Line
    {
        int row = 0;
        QString ipport;
        int result = UpgradeTools::Waiting;
        int share = 0; ///< of the percent of its document
        QString text;
        bool isNew = true; ///< the result is not in the file yet
    };
    struct Document
    {
        QString name;
        QString path;                              ///< of the file with the results
        std::unique_ptr<UpgradeDocument> workbook; ///< null when the results are in the file
        QHash<QString, Line> lines;                ///< by key
        int refused = 0;
        qsizetype running = 0; ///< lines
        qsizetype shareSum = 0;
        int toldPercent = -1;
        QString outcome; ///< of the writing, for the user
    };

    void forgetResults();
    /// On any thread.
    static void write(Document &document);
    void finish(const std::shared_ptr<Document> &document);

    const Writer m_writer;
    mutable std::mutex m_mutex; ///< for the documents; their workbooks are the scene's, and then the writer's
    std::vector<std::shared_ptr<Document>> m_documents;
    std::vector<std::shared_ptr<Document>> m_written; ///< the scene's; lines of them may be upgraded again
    QList<Schedule> m_news;                           ///< of written documents
    int m_beingWritten = 0;
    int m_finishedLines = 0; ///< of the documents that are done
    QString m_result;
    int m_succeeded = 0;
};
