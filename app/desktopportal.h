#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <optional>

class QDBusError;

/// The colour scheme that the portal service of a D-Bus reports, and its changes. The constructor sends the
/// request and does not wait: there is no preference until the service has responded, and without a service.
/// Main thread only.
class DesktopPortal : public QObject
{
    Q_OBJECT
public:
    /// `bus` may be disconnected; there is no preference then.
    explicit DesktopPortal(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Whether dark windows are preferred; nullopt without a known preference.
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
