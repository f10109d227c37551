#include "app/desktopscheme.h"

#ifdef CONFIGTOOLS_DESKTOP_PORTAL
#include "app/desktopportal.h"
#endif

#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QSettings>

namespace {

const QString portalConnection = QStringLiteral("desktop portal");

std::optional<bool> windowsPrefersDark()
{
#ifdef Q_OS_WIN
    const QSettings settings(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                       "Themes\\Personalize"),
        QSettings::NativeFormat);
    const QVariant light = settings.value(QStringLiteral("AppsUseLightTheme"));
    if (light.isValid())
        return light.toInt() == 0;
#endif
    return std::nullopt;
}

bool isPaletteDark()
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace

QString DesktopScheme::sessionBus()
{
#ifdef Q_OS_UNIX
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    if (socket.startsWith(u'/') && QFileInfo::exists(socket))
        return QStringLiteral("unix:path=") + socket;
#endif
    return {};
}

DesktopScheme::DesktopScheme(const QString &portalBus, QObject *parent)
    : QObject(parent), m_portalBus(portalBus)
{
#ifdef CONFIGTOOLS_DESKTOP_PORTAL
    if (!m_portalBus.isEmpty()) {
        m_portal = new DesktopPortal(QDBusConnection::connectToBus(m_portalBus, portalConnection), this);
        connect(m_portal, &DesktopPortal::changed, this, &DesktopScheme::update);
    }
#endif
    // Qt sends an event to the application if the palette changes, and on Windows to the windows if the
    // settings change.
    QCoreApplication::instance()->installEventFilter(this);
    update();
}

DesktopScheme::~DesktopScheme()
{
#ifdef CONFIGTOOLS_DESKTOP_PORTAL
    delete m_portal;
    if (!m_portalBus.isEmpty())
        QDBusConnection::disconnectFromBus(portalConnection);
#endif
}

bool DesktopScheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::ThemeChange)
        update();
    return QObject::eventFilter(watched, event);
}

std::optional<bool> DesktopScheme::portalPrefersDark() const
{
#ifdef CONFIGTOOLS_DESKTOP_PORTAL
    if (m_portal)
        return m_portal->prefersDark();
#endif
    return std::nullopt;
}

void DesktopScheme::update()
{
    bool isDark = false;
    if (const std::optional<bool> portal = portalPrefersDark())
        isDark = *portal;
    else if (const std::optional<bool> windows = windowsPrefersDark())
        isDark = *windows;
    else
        isDark = isPaletteDark();
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    Q_EMIT darkChanged();
}
