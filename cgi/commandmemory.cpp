#include "cgi/commandmemory.h"

#include "cgi/logging.h"
#include "files/filereplacement.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString recentKey = QStringLiteral("recent");
const QString favouritesKey = QStringLiteral("favourites");

bool canBeKept(const QString &command)
{
    return !command.isEmpty() && command.size() <= CommandMemory::longestCommand;
}

QStringList commandsOf(const QJsonValue &value, qsizetype most)
{
    QStringList commands;
    const QJsonArray list = value.toArray();
    for (const auto &item : list) {
        const QString command = item.toString();
        if (commands.size() < most && canBeKept(command) && !commands.contains(command))
            commands.append(command);
    }
    return commands;
}

} // namespace

CommandMemory::CommandMemory(const QString &path) : m_path(path)
{
    read();
}

void CommandMemory::remember(const QString &command)
{
    const QString text = command.trimmed();
    if (!canBeKept(text) || (!m_recent.isEmpty() && m_recent.constFirst() == text))
        return;
    m_recent.removeAll(text);
    m_recent.prepend(text);
    m_recent = m_recent.mid(0, mostRecent);
    write();
}

void CommandMemory::setFavourite(const QString &command, bool isFavourite)
{
    const QString text = command.trimmed();
    if (m_favourites.contains(text) == isFavourite)
        return;
    if (!isFavourite)
        m_favourites.removeAll(text);
    else if (canBeKept(text) && m_favourites.size() < mostFavourites)
        m_favourites.append(text);
    else
        return;
    write();
}

void CommandMemory::read()
{
    QFile file(m_path);
    if (!file.exists())
        return;
    if (!file.open(QIODevice::ReadOnly)) {
        m_state = State::Unopened;
        qCWarning(logCgi).noquote() << "cannot read" << m_path << "-" << file.errorString();
        return;
    }
    constexpr qint64 largest = 4LL * 1024 * 1024;
    const QByteArray text = file.read(largest + 1);
    const QJsonDocument document = QJsonDocument::fromJson(text.size() > largest ? QByteArray() : text);
    if (!document.isObject()) {
        m_state = State::Damaged;
        qCWarning(logCgi).noquote() << m_path << "contains no valid list of commands";
        return;
    }
    m_recent = commandsOf(document.object().value(recentKey), mostRecent);
    m_favourites = commandsOf(document.object().value(favouritesKey), mostFavourites);
}

void CommandMemory::write()
{
    if (m_state == State::Unopened)
        return;
    const QJsonObject object = {{recentKey, QJsonArray::fromStringList(m_recent)},
                                {favouritesKey, QJsonArray::fromStringList(m_favourites)}};
    const QByteArray text = QJsonDocument(object).toJson();
    QString failure = m_state == State::Damaged ? setDamagedFileAside(m_path) : QString();
    if (failure.isEmpty()) {
        m_state = State::Valid;
        failure = replaceFile(m_path, text, FileReaders::Owner);
    }
    if (!failure.isEmpty())
        qCWarning(logCgi).noquote() << "cannot write" << m_path << "-" << failure;
}
