// Steps that several subjects of the tour share. A step drives the main window with `driver`. A check that
// fails, or a condition that does not become true in time, ends the process.
#pragma once

#include "tests/tour/driver/driver.h"

#include <QCoreApplication>

/// A string of the application in the language of the tour: the translation of the source text `text`
/// (Chinese) in the context `context`, the name of its class or QML file.
inline QString translated(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

/// Waits until exactly this message is shown to the user: at a field, in the open dialog, or as a notice of
/// the window.
inline void expectToast(const Driver &driver, const QString &text)
{
    driver.await(QStringLiteral("the message \"%1\" is shown").arg(text), [&] {
        return driver.texts(QStringLiteral("toastText")).contains(text) ||
               driver.texts(QStringLiteral("fieldMessage")).contains(text) ||
               driver.texts(QStringLiteral("dialogNotice")).contains(text);
    });
}

/// Whether a search for devices runs.
inline bool isSearching(const Driver &driver)
{
    return driver.window()->property("searching").toBool();
}

/// Waits until no search runs, also if none has been started; `seconds` at most.
inline void awaitSearchEnd(const Driver &driver, int seconds = 30)
{
    driver.await(
        QStringLiteral("the search ends"), [&] { return !isSearching(driver); }, seconds);
}

/// Waits for the start and the end of a search that has just been requested.
inline void awaitSearch(const Driver &driver)
{
    driver.await(QStringLiteral("a search runs"), [&] { return isSearching(driver); });
    awaitSearchEnd(driver);
}

/// Starts a search with the keyboard and waits for its end.
inline void searchAgain(const Driver &driver)
{
    driver.key(Qt::Key_F5);
    awaitSearch(driver);
}

/// Whether the current page shows a running batch (work on several devices).
inline bool isBatchRunning(const Driver &driver)
{
    return driver.find(QStringLiteral("runningText")) != nullptr;
}

/// Waits until the current page shows no running batch; `seconds` at most.
inline void awaitBatchEnd(const Driver &driver, int seconds = 120)
{
    driver.await(
        QStringLiteral("the batch ends"), [&] { return !isBatchRunning(driver); }, seconds);
}

/// Waits until the configuration page has finished its requests to the device, 30 s at most.
inline void awaitConfigIdle(const Driver &driver)
{
    driver.await(
        QStringLiteral("the configuration page has finished its requests"),
        [&] {
            const QString name = QStringLiteral("configState");
            const QString state = driver.find(name) ? driver.text(name) : QString();
            return !state.isEmpty() && !state.endsWith(u'…');
        },
        30);
}

/// Sets the default account's password in the search settings. This starts a search, whose end is awaited.
inline void setDefaultPassword(const Driver &driver, const QString &password)
{
    driver.click(QStringLiteral("searchSettingsButton"));
    driver.fill(QStringLiteral("passwordField"), password);
    driver.click(QStringLiteral("okButton"));
    awaitSearch(driver);
}
