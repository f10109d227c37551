#include "app/desktopportal.h"

#include "app/logging.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusVariant>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

/// The service puts a variant into another one in one of its operations.
QVariant unwrapped(QVariant value)
{
    constexpr int deepest = 3;
    for (int depth = 0; depth < deepest && value.userType() == qMetaTypeId<QDBusVariant>(); ++depth)
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopPortal::DesktopPortal(const QDBusConnection &bus, QObject *parent) : QObject(parent), m_bus(bus)
{
    if (!m_bus.isConnected())
        return;
    // First the changes: none is lost between the answer and this.
    m_bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(takeChange(QDBusMessage)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    question.setArguments({appearanceGroup, schemeKey});
    m_bus.callWithCallback(question, this, SLOT(takeAnswer(QDBusMessage)), SLOT(takeError(QDBusError)));
}

void DesktopPortal::takeAnswer(const QDBusMessage &answer)
{
    take(answer.arguments().value(0));
}

void DesktopPortal::takeError(const QDBusError &error)
{
    qCDebug(logApp).noquote() << "The desktop does not tell its colour scheme:" << error.message();
}

void DesktopPortal::takeChange(const QDBusMessage &change)
{
    const QVariantList arguments = change.arguments();
    if (arguments.value(0).toString() == appearanceGroup && arguments.value(1).toString() == schemeKey)
        take(arguments.value(2));
}

void DesktopPortal::take(const QVariant &value)
{
    constexpr uint dark = 1;
    constexpr uint light = 2;
    const uint scheme = unwrapped(value).toUInt();
    const std::optional<bool> prefersDark =
        scheme == dark || scheme == light ? std::optional<bool>(scheme == dark) : std::nullopt;
    if (prefersDark == m_prefersDark)
        return;
    m_prefersDark = prefersDark;
    Q_EMIT changed();
}
