#pragma once

#include "cgi/cgiprocedure.h"
#include "cgi/commandmemory.h"

#include <QElapsedTimer>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>

/// Commands to devices over HTTP, for QML: one command, or the commands of a workbook with their results
/// written to it; and utilities of the command page.
///
/// Operations run on the main thread and block it. The pages send commands with CgiBatches instead. The event
/// loop runs during a request and between two rows of a workbook, so that stop() can be called. The object
/// must exist until the call has returned.
class CGIConfigManage : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object, created on first use. It checks logins by the process-wide factory and works
    /// in the ApplicationFolders.
    static CGIConfigManage *getinstance();

    /// Deletes the process-wide object.
    static void deleteInstance();

    /// Stores the typed commands in "cgicommands.json" in `memoryFolder`.
    CGIConfigManage(CgiSurroundings surroundings, const QString &memoryFolder, QObject *parent = nullptr);

    /// The factory's login check, HTTP by libcurl, the folder of responses and the system clock.
    [[nodiscard]] static CgiSurroundings programSurroundings();

    /// The context that its commands are sent with.
    [[nodiscard]] const CgiSurroundings &surroundings() const { return m_surroundings; }

    /// Sets the proxy of later requests to other hosts, as "http://host:port"; empty for none.
    void setProxy(const QString &proxy);

    /// Sets the handler that decides about certificates of devices over HTTPS; `user` must outlive the
    /// requests.
    void setCertificateHandler(sdk::CertificateHandler handler, void *user);

    /// Sends one command. Returns the result of CgiProcedure::run(). Fails with "Error:" and the reason while
    /// another command or a workbook runs.
    Q_INVOKABLE QString singleCGIConfig(const QString &url, const QString &user, const QString &pass,
                                        const QString &ipport);

    /// Sends the commands of a workbook in the order of its rows, and writes each result into its row. `path`
    /// may be a "file:///" URL. Returns a message for the user: the numbers of successes and failures and the
    /// file of the results, or the reason why the workbook cannot be used. Refused while a command runs.
    Q_INVOKABLE QString batchCGIConfig(const QString &path);

    /// Ends the running request immediately, and the workbook, whose results so far are saved. The device may
    /// have executed the command.
    Q_INVOKABLE void stop();

    /// The rows (maps or JSON objects) sorted by the text of one field; the sort is stable.
    Q_INVOKABLE QVariantList sortList(const QVariantList &list, const QString &key, Qt::SortOrder order);

    /// Copies the text to the clipboard.
    Q_INVOKABLE void copyText(const QString &text);

    /// The lines of the text for a list. A line of more than 500 characters is split. A text of more than
    /// 100,000 lines is truncated, and a further line contains a note of that.
    Q_INVOKABLE QStringList linesOf(const QString &text) const;

    /// Saves a text as UTF-8 in a new file in `folder`, named by the time. Returns its "path", and a
    /// "failure" (error text of the system) that is empty on success.
    Q_INVOKABLE QVariantMap saveText(const QString &folder, const QString &text) const;

    /// The path of the template workbook in the user's language, in "template" of the surroundings' folder.
    Q_INVOKABLE QString templateFile() const;

    /// The URL of the template workbook, for the desktop.
    Q_INVOKABLE QUrl templateAddress() const;

    /// The file name of the template workbook.
    [[nodiscard]] static QString templateFileName();

    /// The last 20 commands, the latest first.
    Q_INVOKABLE QStringList recentCommands() const;
    /// Adds a command to recentCommands(), see CommandMemory::remember().
    Q_INVOKABLE void rememberCommand(const QString &command);
    /// In the order in which they were added, up to 200.
    Q_INVOKABLE QStringList favouriteCommands() const;
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
