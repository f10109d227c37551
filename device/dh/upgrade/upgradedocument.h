#pragma once

#include "device/registry/upgradetools.h"
#include "sheets/qexcel.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

#include <memory>
#include <vector>

/// A line of an upgrade document.
struct UpgradeDocumentLine
{
    int row = 0; ///< in the sheet, from 2
    /// "address:port" as in rows; the port of an empty cell is 37777. With an invalid address, the text of
    /// its cell; with an invalid port, 0.
    QString ipport;
    QString user;                                      ///< empty if the cell is empty
    QString password;                                  ///< with its spaces; empty if the cell is empty
    QString file;                                      ///< absolute path; empty if the cell is empty
    UpgradeTools::Result refusal = UpgradeTools::None; ///< error in the line itself; None if there is none
};

/// An upgrade document: a workbook of devices and firmware files, to which the results are written. Row 1
/// contains the titles. Each other row is a device: address, port, user name, password, file (absolute, or
/// relative to the folder of the workbook) and result. open() is called first. Not thread-safe; if QExcel
/// drives a spreadsheet application, used only on the thread that created the object.
class UpgradeDocument
{
    Q_DECLARE_TR_FUNCTIONS(UpgradeDocument)
public:
    /// Maximum number of lines; a document with more is refused.
    static constexpr int maximumLines = 10000;

    /// The titles that row 1 must start with, in the user's language.
    [[nodiscard]] static QStringList requiredTitles();

    /// Opens the file (local path) and checks titles and size. Returns why it cannot be used, in the user's
    /// language; empty on success. After a failure no other function may be called.
    [[nodiscard]] QString open(const QString &path);

    /// The rows that contain an address or a file, in order. A row with an invalid address or port has the
    /// refusal LineUnusable; one with the address and port of an earlier row ListedTwice. Files are not
    /// checked.
    [[nodiscard]] std::vector<UpgradeDocumentLine> lines();

    /// The opened file; after a successful keep() the file to which the results were written.
    [[nodiscard]] const QString &path() const { return m_path; }

    /// Sets the result cell of a row in memory; keep() writes it. A failure is logged.
    void setResult(int row, const QString &result);

    /// Writes the results to the opened file. If that fails, writes the workbook to a new file next to it or
    /// in the user's documents folder. Returns a message for the user: the path of the file, or the error
    /// (see isKept()). Blocks for the file.
    [[nodiscard]] QString keep();

    /// Whether keep() has succeeded.
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

/// An opened upgrade document with the state of its file.
struct OpenedUpgradeDocument
{
    QString path;           ///< local path
    QString refusal = {};   ///< why it cannot be used, in the user's language; empty if it can
    QDateTime changed = {}; ///< modification time of the file
    std::unique_ptr<UpgradeDocument> document = {}; ///< null if it is refused
    std::vector<UpgradeDocumentLine> lines = {};

    /// Whether this is the file at `localPath`, unmodified since it was opened.
    [[nodiscard]] bool isCurrent(const QString &localPath) const;
};

/// Opens a document and reads its lines. Blocks for the file. Any thread; for the thread of the result see
/// UpgradeDocument.
[[nodiscard]] OpenedUpgradeDocument openUpgradeDocument(const QString &localPath);
