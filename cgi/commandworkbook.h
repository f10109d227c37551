#pragma once

#include "sheets/qexcel.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// The command of a row.
struct WorkbookCommand
{
    int row = 0;     ///< in the sheet, from 2; 1 is the row of titles
    QString command; ///< the text of the cell without spaces at its ends
    QString url;     ///< scheme, address (with a web port, if the cell has one) and command
    QString ipport;  ///< "address:port" of the login, without the web port; the port is not checked
    QString user;
    QString password;
    /// Reason why it must not be sent, in the user's language: the command does not start with "/", or the
    /// address is empty or has characters that no host has. Empty for a command that can be sent.
    QString refusal;
};

/// A workbook of commands, whose results are written to its rows. The first row contains the titles, each
/// other row a command. The columns are address (also "address:web port"), port of the login, user name,
/// password, command, scheme (an integer other than 0 for HTTPS, anything else for HTTP) and result.
///
/// Not thread-safe: several threads may use an object only one after another. With an engine that drives a
/// spreadsheet application, only the thread that created it may. Operations block.
class CommandWorkbook
{
    Q_DECLARE_TR_FUNCTIONS(CommandWorkbook)
public:
    static constexpr qsizetype longestResult = 32'000; ///< characters; slightly below the limit of a cell

    /// Uses the engine of sheets::makeSheetEngine().
    CommandWorkbook() = default;
    explicit CommandWorkbook(std::unique_ptr<sheets::SheetEngine> engine);

    /// The titles that open() requires in the first five cells of the first row, in the user's language.
    [[nodiscard]] static QStringList requiredTitles();

    /// The local path of a path or a "file:///" URL.
    [[nodiscard]] static QString localPath(const QString &path);

    /// Opens the file with this local path. Returns the reason why it cannot be used, in the user's language:
    /// it is not a readable workbook, or has other titles. Empty on success.
    [[nodiscard]] QString open(const QString &path);

    /// The rows with a command or an address in ascending order, without the row of titles. Includes rows
    /// whose command must not be sent, see `refusal`.
    [[nodiscard]] std::vector<WorkbookCommand> commands();

    /// Writes a result to the row in the opened workbook; keepResults() writes the file. A text of more than
    /// longestResult is truncated, with a note in the cell. A failure is logged.
    void setResult(int row, const QString &result);

    /// Writes the workbook with all results so far to path(). If that fails, it is written to a new file in
    /// the same folder or in the user's documents folder, and path() is that file from then on. Returns false
    /// when all of that failed.
    bool keepResults();

    /// The file that was opened, or the file that keepResults() has written instead.
    [[nodiscard]] const QString &path() const { return m_path; }

    /// The reason of the last failure of any operation, for the log; empty when none has failed.
    [[nodiscard]] QString errorText() const { return m_excel.errorText(); }

private:
    [[nodiscard]] QString text(int row, int column);
    [[nodiscard]] QString trimmedText(int row, int column);
    [[nodiscard]] WorkbookCommand command(int row);

    QExcel m_excel;
    QString m_path;
};
