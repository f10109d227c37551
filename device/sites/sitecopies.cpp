#include "device/sites/sitecopies.h"

#include "device/sites/sitefile.h"
#include "files/filereplacement.h"

#include <QDir>

SiteCopies::Copy SiteCopies::keep(const Site &site, const QString &title) const
{
    constexpr qsizetype longestTitle = 60;
    const QDir folder(m_folder);
    if (!folder.mkpath(QStringLiteral(".")))
        return {.path = {}, .failure = m_folder};
    QString name = title.left(longestTitle) + QLatin1Char(' ') +
                   QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss.zzz"));
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    // A file ".name" is hidden, and ":name" is a path of a resource.
    if (name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char(':')))
        name.front() = QLatin1Char('_');
    const QString path = m_folder + QLatin1Char('/') + name + QLatin1Char('.') + SiteFile::suffix;
    const QString failure = replaceFile(path, SiteFile::text(site));
    if (failure.isEmpty())
        removeOld();
    return {.path = path, .failure = failure};
}

void SiteCopies::removeOld() const
{
    QDir folder(m_folder);
    const QStringList copies = folder.entryList({QLatin1String("*.") + SiteFile::suffix}, QDir::Files,
                                                QDir::Time); // the latest one first
    for (qsizetype index = most; index < copies.size(); ++index)
        folder.remove(copies.at(index));
}
