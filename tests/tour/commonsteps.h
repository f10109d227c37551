// What several steps of the tour read and say.
#pragma once

#include "tests/tour/driver.h"

#include <QCoreApplication>

/// A text of the program in the language of the tour.
inline QString translated(const char *context, const char *text)
{
    return QCoreApplication::translate(context, text);
}

/// A message to the user: at the field that it is about, in the dialog that is open, or as a notice of the
/// window.
inline void expectToast(const Driver &driver, const QString &text)
{
    driver.await(QStringLiteral("\"%1\" is said").arg(text), [&] {
        return driver.texts(QStringLiteral("toastText")).contains(text) ||
               driver.texts(QStringLiteral("fieldMessage")).contains(text) ||
               driver.texts(QStringLiteral("dialogNotice")).contains(text);
    });
}

/// Sets the account that found devices are logged in to with.
inline void setDefaultPassword(const Driver &driver, const QString &password)
{
    const auto isSearching = [&] {
        return driver.window()->property("searching").toBool();
    };
    driver.click(QStringLiteral("searchSettingsButton"));
    driver.fill(QStringLiteral("passwordField"), password);
    driver.click(QStringLiteral("okButton"));
    driver.await(QStringLiteral("a search runs"), isSearching);
    driver.await(QStringLiteral("the search ends"), std::not_fn(isSearching), 30);
}
