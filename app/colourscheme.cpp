#include "app/colourscheme.h"

#include "app/localconfig.h"
#include "app/widgetstyle.h"

#include <QApplication>

ColourScheme::ColourScheme(DesktopScheme &desktop, CLocalConfig &localConfig, QObject *parent)
    : QObject(parent), m_desktop(desktop), m_localConfig(localConfig), m_choice(localConfig.colourScheme())
{
    connect(&m_desktop, &DesktopScheme::darkChanged, this, &ColourScheme::apply);
    apply();
    qApp->setStyleSheet(widgetStyle(m_isDark));
}

bool ColourScheme::choose(const QString &choice)
{
    m_localConfig.setColourScheme(choice);
    if (m_choice != choice) {
        m_choice = choice;
        Q_EMIT choiceChanged();
        apply();
    }
    return m_localConfig.colourScheme() == choice;
}

void ColourScheme::apply()
{
    const bool isDark = m_choice == u"dark" || (m_choice != u"light" && m_desktop.isDark());
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    qApp->setStyleSheet(widgetStyle(m_isDark));
    Q_EMIT darkChanged();
}
