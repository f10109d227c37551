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

/// Copies `original`, if it exists, to `draft`. Returns an error text, empty on success.
QString copyContent(const QString &original, const QString &draft)
{
    QFile from(original);
    if (!from.exists())
        return {};
    QFile to(draft);
    // Unbuffered, because Qt does not detect an incomplete write of its buffer.
    if (!from.open(QIODevice::ReadOnly))
        return from.errorString();
    const bool isCopied =
        to.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeCompletely(to, from.readAll());
    return isCopied ? QString() : to.errorString();
}

/// Makes `path` newer than `before`. QSettings does not read a file again if its size and time are unchanged,
/// and the time of a file has a resolution of some milliseconds.
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
    QString copyError = copyContent(m_path, draft.fileName());
    if (!copyError.isEmpty())
        return copyError;
    QSettings settings(draft.fileName(), QSettings::IniFormat);
    for (const auto &[key, value] : values)
        settings.setValue(key, value);
    settings.sync();
    if (settings.status() == QSettings::AccessError)
        return QStringLiteral("the draft cannot be written");

    // Read with another name, because QSettings caches the values of a file that it has written.
    const QString written = draft.fileName() + QStringLiteral(".written");
    const auto tidy = qScopeGuard([&written] { QFile::remove(written); });
    QFile text(written);
    if (!QFile::rename(draft.fileName(), written) || !text.open(QIODevice::ReadOnly))
        return QStringLiteral("the draft cannot be read");
    if (valuesOf(QSettings(written, QSettings::IniFormat)) != valuesOf(settings))
        return QStringLiteral("the draft is incomplete, the disk may be full");
    const QDateTime before = QFileInfo(m_path).lastModified();
    QString error = replaceFile(m_path, text.readAll(), FileReaders::Owner);
    if (error.isEmpty())
        makeNewer(m_path, before);
    return error;
}
