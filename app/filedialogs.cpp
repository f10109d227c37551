#include "app/filedialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QWindow>

#include <utility>

FileDialogs::FileDialogs(QObject *parent) : QObject(parent), m_folder(QDir::homePath()) {}

void FileDialogs::chooseFile(const QString &title, const QStringList &nameFilters, const QJSValue &chosen)
{
    open(title, nameFilters, false, chosen);
}

void FileDialogs::chooseFolder(const QString &title, const QJSValue &chosen)
{
    open(title, {}, true, chosen);
}

bool FileDialogs::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

void FileDialogs::open(const QString &title, const QStringList &nameFilters, bool folder,
                       const QJSValue &chosen)
{
    if (std::exchange(m_open, true))
        return;
    auto *dialog = new QFileDialog(nullptr, title, m_folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setFileMode(folder ? QFileDialog::Directory : QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::ShowDirsOnly, folder);
    if (!nameFilters.isEmpty())
        dialog->setNameFilters(nameFilters);
    if (QWindow *window = QGuiApplication::focusWindow()) {
        dialog->winId(); // makes its window
        dialog->windowHandle()->setTransientParent(window);
    }
    connect(dialog, &QFileDialog::finished, this, [this, dialog, chosen](int result) {
        m_open = false;
        m_folder = dialog->directory().absolutePath();
        const QString path = dialog->selectedFiles().value(0);
        if (result == QDialog::Accepted && !path.isEmpty())
            chosen.call({path});
    });
    dialog->show(); // open() would make it modal for one window only
}
