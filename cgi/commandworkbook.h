#pragma once

#include "sheets/qexcel.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// The command of a row.
struct WorkbookCommand
{
    int row = 0;     ///< in the sheet, from 2; 1 is the row of titles
    QString command; ///< with the leading "/"; without it `refusal` is set
    QString url;     ///< scheme, address (with a web port, if the cell has one) and command
    QString ipport;  ///< "address:port" of the login, without the web port
    QString user;
    QString password;
    QString refusal; ///< reason why it must not be sent, in the user's language; usually empty
};

/// A workbook of commands, whose results are written to its rows. The first row contains the titles, each
/// other row a command: address, port, user name, password, command, scheme (empty or 0 for HTTP, another
/// integer for HTTPS) and result.
class CommandWorkbook
{
    Q_DECLARE_TR_FUNCTIONS(CommandWorkbook)
public:
    static constexpr qsizetype longestResult = 32'000; ///< characters; slightly below the limit of a cell

    /// Uses the engine for this host.
    CommandWorkbook() = default;
    explicit CommandWorkbook(std::unique_ptr<sheets::SheetEngine> engine);

    /// The titles in the first five cells of the first row, in the user's language.
    [[nodiscard]] static QStringList requiredTitles();

    /// The local path of a path or a "file:///" URL.
    [[nodiscard]] static QString localPath(const QString &path);

    /// Opens the file. Returns the reason why it cannot be used, in the user's language; empty on success.
    [[nodiscard]] QString open(const QString &path);

    /// The rows with a command or an address, without the row of titles, in ascending order.
    [[nodiscard]] std::vector<WorkbookCommand> commands();

    /// Writes a result to its row. A text of more than longestResult is truncated, with a note in the cell.
    /// An error is logged.
    void setResult(int row, const QString &result);

    /// Writes all results so far to the file. If that fails, it writes a new file next to it or in the user's
    /// documents folder, and uses that from then on. False when all of that failed.
    bool keepResults();

    /// The file with the results.
    [[nodiscard]] const QString &path() const { return m_path; }

    /// The reason of the last failure of any operation.
    [[nodiscard]] QString errorText() const { return m_excel.errorText(); }

private:
    [[nodiscard]] QString text(int row, int column);
    [[nodiscard]] QString trimmedText(int row, int column);
    [[nodiscard]] WorkbookCommand command(int row);

    QExcel m_excel;
    QString m_path;
};
