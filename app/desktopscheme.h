#pragma once

#include <QObject>

#include <optional>

class DesktopPortal;

/// Whether the desktop asks for dark windows, and every change of that while the program runs.
///
/// It asks, in this order: the desktop portal of a D-Bus, the settings of Windows, and the palette that the
/// toolkit takes from the desktop, which is dark when its words are lighter than its windows. Main thread
/// only.
class DesktopScheme : public QObject
{
    Q_OBJECT
public:
    /// Address of the session's bus; empty where there is none, so that none is started for it.
    [[nodiscard]] static QString sessionBus();

    /// Needs the application object. With an empty `portalBus` no portal is asked.
    explicit DesktopScheme(const QString &portalBus, QObject *parent = nullptr);
    ~DesktopScheme() override;

    [[nodiscard]] bool isDark() const { return m_isDark; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void darkChanged();

private:
    [[nodiscard]] std::optional<bool> portalPrefersDark() const;
    void look();

    const QString m_portalBus; ///< empty when there is no portal
    DesktopPortal *m_portal = nullptr;
    bool m_isDark = false;
};
