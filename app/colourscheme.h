#pragma once

#include "app/desktopscheme.h"

#include <QObject>
#include <QString>

class CLocalConfig;

/// Whether the windows are dark: what the user has chosen, or what the desktop asks for. The choice is kept
/// in the local settings; the boxes outside the scene get their colours at once. Main thread only.
class ColourScheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)
    Q_PROPERTY(QString choice READ choice NOTIFY choiceChanged)
public:
    /// Both outlive it.
    ColourScheme(DesktopScheme &desktop, CLocalConfig &localConfig, QObject *parent = nullptr);

    [[nodiscard]] bool isDark() const { return m_isDark; }

    /// "desktop", "light" or "dark".
    [[nodiscard]] QString choice() const { return m_choice; }

    /// Applies a choice at once and stores it. Returns whether it could be stored.
    Q_INVOKABLE bool choose(const QString &choice);

Q_SIGNALS:
    void darkChanged();
    void choiceChanged();

private:
    void apply();

    DesktopScheme &m_desktop;
    CLocalConfig &m_localConfig;
    QString m_choice;
    bool m_isDark = false;
};
