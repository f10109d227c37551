#pragma once

#include "device/registry/upgradetools.h"
#include "sheets/qexcel.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

#include <memory>
#include <vector>

/// A line of a document of upgrades.
struct UpgradeDocumentLine
{
    int row = 0; ///< in the sheet, from 2
    QString ipport;
    QString user;
    QString password;
    QString file;                                      ///< absolute
    UpgradeTools::Result refusal = UpgradeTools::None; ///< why it cannot be upgraded, by the line alone
};

/// A workbook of devices and their firmware files, into which the results are written. The first row holds
/// the titles, each other row a device: address, port, user name, password, file (from the folder of the
/// workbook on, unless it is absolute) and result.
class UpgradeDocument
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeDocument)
public:
    /// Of one document; one with more is refused.
    static constexpr int mostLines = 10000;

    /// What the first five cells of the first row say, in the user's language.
    [[nodiscard]] static QStringList requiredTitles();

    /// Opens the file. Returns why it cannot be used, in the user's language; an empty text when it can.
    [[nodiscard]] QString open(const QString &path);

    /// The rows that hold an address or a file, from above. An address that stands in an earlier row too is
    /// refused.
    [[nodiscard]] std::vector<UpgradeDocumentLine> lines();

    /// The file that was opened, or that the results are in.
    [[nodiscard]] const QString &path() const { return m_path; }

    void setResult(int row, const QString &result);

    /// Writes the results into the file, or else into one beside it. What is to be told to the user.
    [[nodiscard]] QString keep();

    /// Whether keep() has written them.
    [[nodiscard]] bool isKept() const { return m_isKept; }

private:
    [[nodiscard]] QString text(int row, int column);
    [[nodiscard]] bool isLine(int row);
    [[nodiscard]] int lineCount();
    [[nodiscard]] UpgradeDocumentLine line(int row);

    QExcel m_excel;
    QString m_path;
    bool m_isKept = false;
};

/// A document as its file was when it was opened.
struct OpenedUpgradeDocument
{
    QString path;                                   ///< local
    QString refusal = {};                           ///< why it cannot be used, in the user's language
    QDateTime changed = {};                         ///< its file
    std::unique_ptr<UpgradeDocument> document = {}; ///< null if it is refused
    std::vector<UpgradeDocumentLine> lines = {};

    /// Whether this is the file at `localPath`, and nobody has written it since.
    [[nodiscard]] bool isCurrent(const QString &localPath) const;
};

/// Opens a document and reads its lines, on any thread.
[[nodiscard]] OpenedUpgradeDocument openUpgradeDocument(const QString &localPath);
