#include "cgi/internal/partialfile.h"

#include "files/filereplacement.h"

#include <QFileInfo>

namespace {

QString partialName(const QString &path)
{
    const QFileInfo file(path);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".partial.") +
           file.suffix();
}

} // namespace

PartialFile::PartialFile(const QString &path) : m_path(path), m_file(partialName(path)) {}

bool PartialFile::open()
{
    // Unbuffered: Qt does not detect a partially written buffer.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        m_failure = m_file.errorString();
    return !hasFailed();
}

bool PartialFile::write(QByteArrayView chunk)
{
    if (!writeCompletely(m_file, chunk))
        m_failure = m_file.errorString();
    return !hasFailed();
}

bool PartialFile::complete()
{
    m_file.close();
    m_failure = renameOver(m_file.fileName(), m_path);
    return !hasFailed();
}

QString PartialFile::keepPartial()
{
    m_file.close();
    if (m_file.size() > 0)
        return m_file.fileName();
    m_file.remove();
    return {};
}

void PartialFile::remove()
{
    m_file.remove();
}
