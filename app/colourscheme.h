#pragma once

#include "app/desktopscheme.h"

#include <QObject>
#include <QString>

class CLocalConfig;

/// Whether the windows are dark: the user's choice, or the desktop's preference. The choice is stored in the
/// local settings and read once, by the constructor. Changes apply immediately: QML follows darkChanged(),
/// and this class sets the style sheet of the application for the widgets outside QML. Main thread only.
class ColourScheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(QString choice READ choice NOTIFY choiceChanged)
public:
    /// Applies the stored choice. Requires the QApplication. `desktop` and `localConfig` must outlive the
    /// object.
    ColourScheme(DesktopScheme &desktop, CLocalConfig &localConfig, QObject *parent = nullptr);

    [[nodiscard]] bool isDark() const { return m_isDark; }

    /// "light", "dark", or "desktop" (the desktop's preference).
    [[nodiscard]] QString choice() const { return m_choice; }

    /// Applies and stores `choice`, a value of choice(). Returns false if it could not be stored; it then
    /// applies until the application ends.
    Q_INVOKABLE bool choose(const QString &choice);

Q_SIGNALS:
    void darkChanged();   ///< isDark() has changed, by a choice or by the desktop
    void choiceChanged(); ///< choice() has changed; emitted before darkChanged()

private:
    void apply();

    DesktopScheme &m_desktop;
    CLocalConfig &m_localConfig;
    QString m_choice;
    bool m_isDark = false;
};
