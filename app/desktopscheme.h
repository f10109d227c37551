#pragma once

#include <QObject>

#include <optional>

class DesktopPortal;

/// Whether the desktop prefers dark windows, and changes of the preference.
///
/// The first source with a preference decides: the desktop portal of a D-Bus, then the settings of Windows,
/// then Qt's palette, which is dark if its text is lighter than its windows. Main thread only.
class DesktopScheme : public QObject
{
    Q_OBJECT
public:
    /// The address of the session bus of the user, by the environment; empty without one. No bus is started.
    [[nodiscard]] static QString sessionBus();

    /// Requires the application object. `portalBus` is the address of the bus of the portal; empty for no
    /// portal.
    explicit DesktopScheme(const QString &portalBus, QObject *parent = nullptr);
    ~DesktopScheme() override;

    /// Whether dark windows are preferred. May change later, when the portal has responded.
    [[nodiscard]] bool isDark() const { return m_isDark; }

    /// Observes the events of the application for changes of the palette and of the settings of Windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void darkChanged();

private:
    [[nodiscard]] std::optional<bool> portalPrefersDark() const;
    void update();

    const QString m_portalBus; ///< empty for no portal
    DesktopPortal *m_portal = nullptr;
    bool m_isDark = false;
};
