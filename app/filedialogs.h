#pragma once

#include <QJSValue>
#include <QObject>
#include <QStringList>

class QFileDialog;

/// The desktop's boxes in which the user picks a file or a folder, for the scene. They do not block: what was
/// picked goes, as a local path, to the function that was handed over; a box that is cancelled calls nothing.
/// One box at a time; each begins in the folder that the last one ended in. Main thread only.
class FileDialogs : public QObject
{
    Q_OBJECT
public:
    explicit FileDialogs(QObject *parent = nullptr);

    /// An existing file. `nameFilters` as in "Excel Files (*.xlsx)".
    Q_INVOKABLE void chooseFile(const QString &title, const QStringList &nameFilters, const QJSValue &chosen);

    /// A file to write, which the box asks about when it is there. Without an ending it gets that of the
    /// chosen filter. `name` is the one to begin with.
    Q_INVOKABLE void chooseNewFile(const QString &title, const QStringList &nameFilters, const QString &name,
                                   const QJSValue &chosen);

    Q_INVOKABLE void chooseFolder(const QString &title, const QJSValue &chosen);

    /// True when there is something at this path, so that writing there would replace it.
    Q_INVOKABLE [[nodiscard]] bool exists(const QString &path) const;

private:
    void open(QFileDialog *dialog, const QJSValue &chosen);
    [[nodiscard]] QFileDialog *newDialog(const QString &title) const;

    QString m_folder;
    bool m_open = false;
};
