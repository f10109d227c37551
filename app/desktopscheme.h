#pragma once

#include <QObject>

#include <optional>

class DesktopPortal;

/// Whether the desktop prefers dark windows, and changes of the preference.
///
/// The first source with a preference decides: the desktop portal (a D-Bus service, used if the application
/// is built with D-Bus), then the settings of Windows, then Qt's palette, which is dark if its text is
/// lighter than its windows. One object at a time. Main thread only.
class DesktopScheme : public QObject
{
    Q_OBJECT
public:
    /// The address of the session bus of the user: DBUS_SESSION_BUS_ADDRESS, otherwise the socket "bus" in
    /// XDG_RUNTIME_DIR if it exists. Empty without a bus, and on Windows. No bus is started.
    [[nodiscard]] static QString sessionBus();

    /// Requires the application object. `portalBus` is the address of the bus of the portal, see
    /// sessionBus(); empty: the portal is not used.
    explicit DesktopScheme(const QString &portalBus, QObject *parent = nullptr);
    ~DesktopScheme() override;

    /// Whether dark windows are preferred. May change later, when the portal has responded.
    [[nodiscard]] bool isDark() const { return m_isDark; }

    /// Observes the events of the application for changes of the palette and of the settings of Windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void darkChanged(); ///< isDark() has changed

private:
    [[nodiscard]] std::optional<bool> portalPrefersDark() const;
    void update();

    const QString m_portalBus; ///< empty for no portal
    DesktopPortal *m_portal = nullptr;
    bool m_isDark = false;
};
