// The documents whose lines are being upgraded.
#pragma once

#include "device/dh/upgradedocument.h"

#include <QHash>
#include <QList>

#include <memory>
#include <mutex>
#include <vector>

/// Follows the upgrades that came from documents, and writes their results when the last of a document is
/// there. note() may be called from any thread, the rest on the scene's.
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

    /// Forgets the results of earlier documents.
    void begin();

    /// Adds an opened document.
    void add(const QString &name, std::unique_ptr<UpgradeDocument> document);

    /// Says why a document has no results.
    void addRefused(const QString &name, const QString &reason);

    // Of the document that was added last:

    /// Its line in this row is upgraded under this key, which no other of its lines has.
    void follow(const QString &key, int row);

    /// Its line in this row is not upgraded.
    void refuse(int row, const QString &reason);

    /// An upgrade has this result and text; of one that no document has named nothing is kept.
    void note(const QString &key, int result, int percent, const QString &text);

    /// How far the documents are that have changed. Those that are done are written; whatever comes of that
    /// stands in resultText().
    [[nodiscard]] QList<Schedule> update();

    [[nodiscard]] Progress progress() const;

    [[nodiscard]] bool hasOpen() const { return !m_documents.empty(); }

    /// Empty while documents are open.
    [[nodiscard]] QString resultText() const { return hasOpen() ? QString() : m_result; }

    /// How many devices of the documents that are done were upgraded.
    [[nodiscard]] int succeeded() const { return m_succeeded; }

private:
    struct Line
    {
        int row = 0;
        int result = UpgradeTools::Waiting;
        int share = 0; ///< of the percent of its document
        QString text;
    };
    struct Document
    {
        QString name;
        std::unique_ptr<UpgradeDocument> workbook;
        QHash<QString, Line> lines; ///< by key
        int refused = 0;
        qsizetype running = 0; ///< lines
        qsizetype shareSum = 0;
        int toldPercent = -1;
    };

    void finish(Document &document);

    mutable std::mutex m_mutex; ///< for the documents; their workbooks are the scene's
    std::vector<std::unique_ptr<Document>> m_documents;
    int m_finishedLines = 0; ///< of the documents that are done
    QString m_result;
    int m_succeeded = 0;
};
