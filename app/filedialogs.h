#pragma once

#include <QJSValue>
#include <QObject>
#include <QStringList>

class QFileDialog;

/// The desktop's dialogs for files and folders, for QML. The functions that open a dialog do not block: the
/// function `chosen` is called later with the local path of the choice (a string). It is not called if the
/// dialog is cancelled. A dialog blocks the input of all windows of the application. There is one dialog at a
/// time: while it is open, further calls have no effect, and their `chosen` is never called. A dialog starts
/// in the last folder of the previous one, the first dialog in the user's home folder. Main thread only.
class FileDialogs : public QObject
{
    Q_OBJECT
public:
    explicit FileDialogs(QObject *parent = nullptr);

    /// Chooses an existing file. `nameFilters` are strings like "Excel Files (*.xlsx)".
    Q_INVOKABLE void chooseFile(const QString &title, const QStringList &nameFilters, const QJSValue &chosen);

    /// Chooses a file to write. If the file exists, the dialog asks before it accepts the choice; nothing is
    /// written. A name without a suffix gets that of the selected filter. `name` is the suggested name.
    Q_INVOKABLE void chooseNewFile(const QString &title, const QStringList &nameFilters, const QString &name,
                                   const QJSValue &chosen);

    /// Chooses an existing folder.
    Q_INVOKABLE void chooseFolder(const QString &title, const QJSValue &chosen);

    /// Whether there is a file or a folder at this local path.
    Q_INVOKABLE [[nodiscard]] bool exists(const QString &path) const;

private:
    void open(QFileDialog *dialog, const QJSValue &chosen);
    [[nodiscard]] QFileDialog *newDialog(const QString &title) const;

    QString m_folder;
    bool m_isOpen = false; ///< a dialog is open
};
