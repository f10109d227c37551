#include "licences.h"

#include <QFile>

Licences::Licences(QObject *parent) : QObject(parent)
{
    for (const char *name : {"legal/components.txt", "fonts/inter-LICENSE.txt", "fonts/lucide-LICENSE.txt"}) {
        QFile file(QLatin1String(":/qt/qml/configtools/") + QLatin1String(name));
        if (!file.open(QFile::ReadOnly | QFile::Text))
            continue;
        if (!m_lines.isEmpty())
            m_lines.append({QString(), QString(12, u'\u2014'), QString()});
        m_lines.append(QString::fromUtf8(file.readAll()).trimmed().split(u'\n'));
    }
}
