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

/// The response of the operation "Read" has a variant in a variant.
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
    // Before the request, so that no change is missed.
    m_bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                  SLOT(handleChange(QDBusMessage)));
    QDBusMessage request =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    request.setArguments({appearanceGroup, schemeKey});
    m_bus.callWithCallback(request, this, SLOT(handleResponse(QDBusMessage)), SLOT(handleError(QDBusError)));
}

void DesktopPortal::handleResponse(const QDBusMessage &response)
{
    setPreference(response.arguments().value(0));
}

void DesktopPortal::handleError(const QDBusError &error)
{
    qCDebug(logApp).noquote() << "The desktop portal reports no colour scheme:" << error.message();
}

void DesktopPortal::handleChange(const QDBusMessage &change)
{
    const QVariantList arguments = change.arguments();
    if (arguments.value(0).toString() == appearanceGroup && arguments.value(1).toString() == schemeKey)
        setPreference(arguments.value(2));
}

void DesktopPortal::setPreference(const QVariant &value)
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
