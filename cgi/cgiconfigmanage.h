#pragma once

#include "cgi/cgiprocedure.h"
#include "cgi/commandmemory.h"

#include <QElapsedTimer>
#include <QObject>
#include <QVariantList>
#include <QVariantMap>

/// Commands to devices over HTTP, for the scene: one, or those of a workbook, whose results are written into
/// it; and the small services that the page of commands needs.
///
/// Everything runs on the scene's thread and blocks it until it is done; the scene itself sends its commands
/// with CgiBatches. While a request waits and between two rows of a workbook the event loop runs, so that
/// stop() can be called. The owner of this object keeps it until the call has returned.
class CGIConfigManage : public QObject
{
    Q_OBJECT
public:
    /// The process-wide object, created on first use: asks the process-wide factory about logins and works in
    /// the program's folder.
    static CGIConfigManage *getinstance();

    /// Deletes the process-wide object.
    static void deleteInstance();

    /// Keeps the commands that the user typed in "cgicommands.json" of the surroundings' folder.
    explicit CGIConfigManage(CgiSurroundings surroundings = programSurroundings(), QObject *parent = nullptr);

    /// The factory's login check, HTTP through the library, the program's folder and the machine's clock.
    [[nodiscard]] static CgiSurroundings programSurroundings();

    /// What its commands are sent with.
    [[nodiscard]] const CgiSurroundings &surroundings() const { return m_surroundings; }

    /// Where requests to other machines go from now on, as "http://host:port"; empty: to the devices.
    void setProxy(const QString &proxy);

    /// Who decides about the certificates of devices that are asked over HTTPS; `user` must outlive the
    /// requests.
    void setCertificateHandler(sdk::CertificateHandler handler, void *user);

    /// Sends one command. The text of the answer, the path of the file that it was saved in, or "Error:" and
    /// why not. Refused while another command or a workbook runs.
    Q_INVOKABLE QString singleCGIConfig(const QString &url, const QString &user, const QString &pass,
                                        const QString &ipport);

    /// Sends the commands of a workbook, from above, and writes each result into its row. `path` may be a
    /// "file:///" address. Returns what is to be told to the user: how many succeeded and failed and where
    /// the results are, or why the workbook cannot be used.
    Q_INVOKABLE QString batchCGIConfig(const QString &path);

    /// Ends the request that runs at once, and with it a workbook, whose results so far are kept. The device
    /// may have executed the command.
    Q_INVOKABLE void stop();

    /// The rows (maps) ordered by the text of one field, equal ones as they were.
    Q_INVOKABLE QVariantList sortList(const QVariantList &list, const QString &key, Qt::SortOrder order);

    /// Puts the text on the clipboard.
    Q_INVOKABLE void copyText(const QString &text);

    /// The text in lines for a list. A line of more than 500 letters is cut into several. Of a text with more
    /// than 100,000 lines these are the first ones, and the last line says so.
    Q_INVOKABLE QStringList linesOf(const QString &text) const;

    /// Saves a text as UTF-8 in a new file of `folder`, which is named after the time. Returns its "path",
    /// and a "failure" that is empty on success.
    Q_INVOKABLE QVariantMap saveText(const QString &folder, const QString &text) const;

    /// The workbook to begin from, in the user's language: the path of a file beside the program.
    Q_INVOKABLE QString templateFile() const;

    /// The address by which the desktop opens it.
    Q_INVOKABLE QUrl templateAddress() const;

    /// The name of that file alone.
    [[nodiscard]] static QString templateFileName();

    /// The commands that were used last, the last one first; at most 20.
    Q_INVOKABLE QStringList recentCommands() const;
    Q_INVOKABLE void rememberCommand(const QString &command);
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
