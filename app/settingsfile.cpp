#include "app/settingsfile.h"

#include "files/filereplacement.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSettings>
#include <QTemporaryFile>

namespace {

QVariantMap valuesOf(const QSettings &settings)
{
    QVariantMap values;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys)
        values.insert(key, settings.value(key));
    return values;
}

/// Why `draft` could not be given the text of `original`; empty when it has it. A file that does not exist
/// has no text.
QString copyText(const QString &original, const QString &draft)
{
    QFile from(original);
    if (!from.exists())
        return {};
    QFile to(draft);
    // Not through a buffer: the toolkit does not notice when only a part of that could be written.
    if (!from.open(QIODevice::ReadOnly))
        return from.errorString();
    const bool isCopied =
        to.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeCompletely(to, from.readAll());
    return isCopied ? QString() : to.errorString();
}

/// Makes `path` newer than `before`. The settings class takes a file of the same size and time for the one
/// that it has read, and clocks of file systems tick every few milliseconds only.
void makeNewer(const QString &path, const QDateTime &before)
{
    QFile file(path);
    if (before.isValid() && QFileInfo(path).lastModified() <= before &&
        file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
}

} // namespace

QString SettingsFile::change(const QList<QPair<QString, QString>> &values) const
{
    QTemporaryFile draft(m_path + QStringLiteral(".XXXXXX"));
    if (!draft.open())
        return draft.errorString();
    QString failure = copyText(m_path, draft.fileName());
    if (!failure.isEmpty())
        return failure;
    QSettings settings(draft.fileName(), QSettings::IniFormat);
    for (const auto &[key, value] : values)
        settings.setValue(key, value);
    settings.sync();
    if (settings.status() == QSettings::AccessError)
        return QStringLiteral("the draft cannot be written");

    // Read under another name: of a file that it has written, the class knows the values without reading it.
    const QString written = draft.fileName() + QStringLiteral(".written");
    const auto tidy = qScopeGuard([&written] { QFile::remove(written); });
    QFile text(written);
    if (!QFile::rename(draft.fileName(), written) || !text.open(QIODevice::ReadOnly))
        return QStringLiteral("the draft cannot be read");
    if (valuesOf(QSettings(written, QSettings::IniFormat)) != valuesOf(settings))
        return QStringLiteral("the draft is incomplete, the disk may be full");
    const QDateTime before = QFileInfo(m_path).lastModified();
    QString outcome = replaceFile(m_path, text.readAll());
    if (outcome.isEmpty())
        makeNewer(m_path, before);
    return outcome;
}
