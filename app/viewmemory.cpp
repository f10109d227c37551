#include "app/viewmemory.h"

#include "app/logging.h"
#include "app/settingsfile.h"

#include <QFileInfo>
#include <QSettings>

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

QString viewKey(const QString &name)
{
    return QLatin1String("/view/") + name;
}

} // namespace

ViewMemory::ViewMemory(QString settingsPath, QObject *parent)
    : QObject(parent), m_settingsPath(std::move(settingsPath))
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(1s);
    connect(&m_delay, &QTimer::timeout, this, &ViewMemory::write);
}

ViewMemory::~ViewMemory()
{
    write();
}

QString ViewMemory::text(const QString &name) const
{
    const auto pending = m_pending.constFind(name);
    if (pending != m_pending.cend())
        return *pending;
    const QString text = QSettings(m_settingsPath, QSettings::IniFormat).value(viewKey(name)).toString();
    return text.size() <= longestText ? text : QString();
}

void ViewMemory::keep(const QString &name, const QString &text)
{
    if (text.size() > longestText || text == this->text(name))
        return;
    m_pending.insert(name, text);
    m_delay.start();
}

void ViewMemory::write()
{
    m_delay.stop();
    if (m_pending.isEmpty() || !QFileInfo::exists(m_settingsPath))
        return;
    QList<QPair<QString, QString>> values;
    for (auto text = m_pending.cbegin(); text != m_pending.cend(); ++text)
        values.append({viewKey(text.key()), text.value()});
    const QString failure = SettingsFile(m_settingsPath).change(values);
    if (failure.isEmpty()) {
        m_pending.clear();
        m_hasFailed = false;
        return;
    }
    qCWarning(logApp).noquote() << "ViewMemory: cannot write" << m_settingsPath << "-" << failure;
    if (!std::exchange(m_hasFailed, true))
        Q_EMIT failed();
}
