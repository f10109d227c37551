#pragma once

#include "sheets/qexcel.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// What a row of a workbook asks for.
struct WorkbookCommand
{
    int row = 0;
    QString command; ///< with the leading "/"
    QString url;     ///< scheme, address and command; the port has no part in it
    QString ipport;  ///< "address:port" of the login
    QString user;
    QString password;
    QString refusal; ///< why it is not to be sent, in the user's language; usually empty
};

/// A workbook of commands, into whose rows the results are written. The first row holds the titles, each
/// other row a command: address, port, user name, password, command, scheme (0 for HTTP) and result.
class CommandWorkbook
{
    Q_DECLARE_TR_FUNCTIONS(CommandWorkbook)
public:
    static constexpr qsizetype longestResult = 32'000; ///< letters; a cell takes a little more

    /// With the engine that fits this machine.
    CommandWorkbook() = default;
    explicit CommandWorkbook(std::unique_ptr<sheets::SheetEngine> engine);

    /// What the first five cells of the first row say, in the user's language.
    [[nodiscard]] static QStringList requiredTitles();

    /// The path of what may be a "file:///" address.
    [[nodiscard]] static QString localPath(const QString &path);

    /// Opens the file. Returns why it cannot be used, in the user's language; an empty text when it can.
    [[nodiscard]] QString open(const QString &path);

    /// The rows that hold a command or an address, from above.
    [[nodiscard]] std::vector<WorkbookCommand> commands();

    /// Writes a result into its row. What does not fit into a cell is cut off, and the cell says so.
    void setResult(int row, const QString &result);

    /// Writes all results so far into the file or, when that cannot be written, into a new one beside it or
    /// else among the user's documents, which is then used from there on. False when all of that failed.
    bool keepResults();

    /// The file that holds the results.
    [[nodiscard]] const QString &path() const { return m_path; }

    /// Why the last keepResults() failed.
    [[nodiscard]] QString errorText() const { return m_excel.errorText(); }

private:
    [[nodiscard]] QString text(int row, int column);
    [[nodiscard]] QString trimmedText(int row, int column);
    [[nodiscard]] WorkbookCommand command(int row);

    QExcel m_excel;
    QString m_path;
};
