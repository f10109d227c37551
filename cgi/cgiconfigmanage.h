#pragma once

#include "cgi/cgiprocedure.h"
#include "cgi/commandmemory.h"

#include <QElapsedTimer>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>

/// Commands to devices over HTTP, for QML: one command, or the commands of a workbook, whose results are
/// written to the workbook. Also has utilities of the command page.
///
/// Lives on the main thread. singleCGIConfig() and batchCGIConfig() block until their end. The pages send
/// commands with CgiBatches instead. Events of the main thread are processed during a request and between two
/// rows of a workbook, so that stop() can be called. The object must not be deleted by such an event.
class CGIConfigManage : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object, created on first use with programSurroundings(). It stores the typed commands
    /// in ApplicationFolders::data().
    static CGIConfigManage *getinstance();

    /// Deletes the process-wide object. The next getinstance() creates another one.
    static void deleteInstance();

    /// `surroundings` without its watch: this object has its own for stop(). The typed commands are stored in
    /// "cgicommands.json" in `memoryFolder`.
    CGIConfigManage(CgiSurroundings surroundings, const QString &memoryFolder, QObject *parent = nullptr);

    /// The login check of the process-wide factory, HTTP by libcurl, ApplicationFolders::responses() and the
    /// system clock.
    [[nodiscard]] static CgiSurroundings programSurroundings();

    /// The context that this object sends its commands with.
    [[nodiscard]] const CgiSurroundings &surroundings() const { return m_surroundings; }

    /// Checks the login and sends one command, see CgiProcedure::run(). `url` is complete, with its scheme;
    /// `ipport` is the "address:port" of the login. Returns the text of the response, the path of the file of
    /// an image or a recording, or "Error:" and the reason. While another command or a workbook runs, nothing
    /// is sent, and the result is "Error:" and the reason.
    Q_INVOKABLE QString singleCGIConfig(const QString &url, const QString &user, const QString &pass,
                                        const QString &ipport);

    /// Sends the commands of a workbook in the order of its rows, and writes each result into its row. `path`
    /// may be a "file:///" URL. Returns a message for the user: the numbers of successes and failures and the
    /// file with the results, or the reason why the workbook cannot be used. While a command or another
    /// workbook runs, nothing is sent, and the message is the reason.
    Q_INVOKABLE QString batchCGIConfig(const QString &path);

    /// Ends the running request immediately; its device may have executed the command. A running login check
    /// is not ended. Of a workbook, no further command is sent, and the results so far are saved. Returns
    /// before the stopped call returns. No effect while nothing runs.
    Q_INVOKABLE void stop();

    /// The rows (maps or JSON objects) sorted by the text of the field `key`, in the order of its Unicode
    /// values; the sort is stable.
    Q_INVOKABLE QVariantList sortList(const QVariantList &list, const QString &key, Qt::SortOrder order);

    /// Copies the text to the clipboard.
    Q_INVOKABLE void copyText(const QString &text);

    /// The lines of the text for a list, without carriage returns. A line of more than 500 characters becomes
    /// several lines. After 100,000 lines the rest is omitted, and a last line states that.
    Q_INVOKABLE QStringList linesOf(const QString &text) const;

    /// Saves a text as UTF-8 in a new file "<yyyyMMddhhmmss>.txt" in the existing folder `folder` (a local
    /// path), with "_2", "_3" and so on before ".txt" if that file exists. Returns the "path" of the file
    /// with the separators of the system, and a "failure" (reason as text of the system) that is empty on
    /// success.
    Q_INVOKABLE QVariantMap saveText(const QString &folder, const QString &text) const;

    /// The path of the template workbook in the user's language, in the folder "template" of
    /// ApplicationFolders::program().
    Q_INVOKABLE QString templateFile() const;

    /// templateFile() as a URL, for the desktop.
    Q_INVOKABLE QUrl templateAddress() const;

    /// The file name of the template workbook in the user's language.
    [[nodiscard]] static QString templateFileName();

    /// As CommandMemory::recent(): up to 20 commands, the latest first.
    Q_INVOKABLE QStringList recentCommands() const;
    /// As CommandMemory::remember(): adds a command to recentCommands() and writes the file.
    Q_INVOKABLE void rememberCommand(const QString &command);
    /// As CommandMemory::favourites(): up to 200 commands, in the order in which they were added.
    Q_INVOKABLE QStringList favouriteCommands() const;
    /// As CommandMemory::setFavourite(): adds or removes a favourite command and writes the file.
    Q_INVOKABLE void setFavouriteCommand(const QString &command, bool favourite);

private:
    class Run;

    [[nodiscard]] CgiSurroundings watched(CgiSurroundings surroundings);
    [[nodiscard]] bool passEvents();

    const CgiSurroundings m_surroundings;
    const CgiProcedure m_procedure;
    CommandMemory m_memory;
    bool m_isRunning = false;
    bool m_isStopped = false;
    QElapsedTimer m_sinceEvents;
};
