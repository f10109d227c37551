#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <optional>

class QDBusError;

/// The preference of the desktop for light or dark windows, from the portal service of a D-Bus. The
/// constructor sends the request and does not wait: the preference is unknown until the service has
/// responded, and remains unknown without a service. Later changes are received. Main thread only.
class DesktopPortal : public QObject
{
    Q_OBJECT
public:
    /// `bus` is the session bus of the user. If it is disconnected, the preference remains unknown.
    explicit DesktopPortal(const QDBusConnection &bus, QObject *parent = nullptr);

    /// True: dark windows are preferred; false: light ones. nullopt: unknown, or the desktop has no
    /// preference.
    [[nodiscard]] std::optional<bool> prefersDark() const { return m_prefersDark; }

Q_SIGNALS:
    void changed(); ///< prefersDark() has changed

private Q_SLOTS:
    void handleResponse(const QDBusMessage &response);
    void handleError(const QDBusError &error);
    void handleChange(const QDBusMessage &change);

private:
    void setPreference(const QVariant &value);

    QDBusConnection m_bus;
    std::optional<bool> m_prefersDark;
};
