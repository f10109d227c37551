// The inputs of the configuration page.
#pragma once

#include "tests/tour/driver/commonsteps.h"

inline int numberOf(const Driver &driver, const QString &slider)
{
    return driver.require(slider)->property("value").toInt();
}

inline void pick(const Driver &driver, const QString &choice, int index)
{
    driver.require(choice)->forceActiveFocus(Qt::TabFocusReason); // scrolls it into view
    driver.click(choice);
    driver.key(Qt::Key_Home); // to the start of a long list
    driver.click(QStringLiteral("choice%1").arg(index));
    driver.await(QStringLiteral("the list of \"%1\" is closed").arg(choice),
                 [&] { return !driver.find(QStringLiteral("choice0")); });
    awaitConfigIdle(driver);
}

/// Presses a key on a slider.
inline void pressOnSlider(const Driver &driver, const QString &slider, Qt::Key key)
{
    driver.require(slider)->childItems().constFirst()->forceActiveFocus(Qt::TabFocusReason);
    driver.key(key);
}

/// Moves a slider with the keyboard.
inline void slide(const Driver &driver, const QString &slider, Qt::Key key, int expected)
{
    pressOnSlider(driver, slider, key);
    driver.await(QStringLiteral("\"%1\" has the number %2").arg(slider).arg(expected),
                 [&] { return numberOf(driver, slider) == expected; });
    awaitConfigIdle(driver);
}

inline void choose(const Driver &driver, const QString &device)
{
    driver.click(QStringLiteral("device_") + device);
    awaitConfigIdle(driver);
}
