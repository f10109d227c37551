#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <optional>

class QDBusError;

/// The colour scheme of the desktop as the portal service of a D-Bus tells it, and every change of it.
/// Nothing waits for the service: without one, or until it has answered, there is no preference.
class DesktopPortal : public QObject
{
    Q_OBJECT
public:
    explicit DesktopPortal(const QDBusConnection &bus, QObject *parent = nullptr);

    /// Whether dark windows are preferred; empty when the desktop has no preference, or none is known.
    [[nodiscard]] std::optional<bool> prefersDark() const { return m_prefersDark; }

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void takeAnswer(const QDBusMessage &answer);
    void takeError(const QDBusError &error);
    void takeChange(const QDBusMessage &change);

private:
    void take(const QVariant &value);

    QDBusConnection m_bus;
    std::optional<bool> m_prefersDark;
};
