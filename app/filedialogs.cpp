#include "app/filedialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QWindow>

FileDialogs::FileDialogs(QObject *parent) : QObject(parent), m_folder(QDir::homePath()) {}

void FileDialogs::chooseFile(const QString &title, const QStringList &nameFilters, const QJSValue &chosen)
{
    if (m_isOpen)
        return;
    QFileDialog *dialog = newDialog(title);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters(nameFilters);
    open(dialog, chosen);
}

void FileDialogs::chooseNewFile(const QString &title, const QStringList &nameFilters, const QString &name,
                                const QJSValue &chosen)
{
    if (m_isOpen)
        return;
    QFileDialog *dialog = newDialog(title);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters(nameFilters);
    const auto useSuffix = [dialog](const QString &filter) {
        static const QRegularExpression suffix(QStringLiteral("\\*\\.(\\w+)"));
        dialog->setDefaultSuffix(suffix.match(filter).captured(1));
    };
    connect(dialog, &QFileDialog::filterSelected, dialog, useSuffix);
    useSuffix(nameFilters.value(0));
    dialog->selectFile(name);
    open(dialog, chosen);
}

void FileDialogs::chooseFolder(const QString &title, const QJSValue &chosen)
{
    if (m_isOpen)
        return;
    QFileDialog *dialog = newDialog(title);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    open(dialog, chosen);
}

bool FileDialogs::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

QFileDialog *FileDialogs::newDialog(const QString &title) const
{
    auto *dialog = new QFileDialog(nullptr, title, m_folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::ApplicationModal);
    // Each dialog adds its icons to the cache under new keys, up to 10 MB. Nothing else uses the cache.
    connect(dialog, &QObject::destroyed, &QPixmapCache::clear);
    return dialog;
}

void FileDialogs::open(QFileDialog *dialog, const QJSValue &chosen)
{
    m_isOpen = true;
    if (QWindow *window = QGuiApplication::focusWindow()) {
        dialog->winId(); // creates the window
        dialog->windowHandle()->setTransientParent(window);
    }
    connect(dialog, &QFileDialog::finished, this, [this, dialog, chosen](int result) {
        m_isOpen = false;
        m_folder = dialog->directory().absolutePath();
        const QString path = dialog->selectedFiles().value(0);
        if (result == QDialog::Accepted && !path.isEmpty())
            chosen.call({path});
    });
    dialog->show(); // open() would set Qt::WindowModal
}
