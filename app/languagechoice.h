// The language of the window, chosen at each start.
#pragma once

#include <QLocale>
#include <QString>

class CLocalConfig;

/// Returns the language code that is stored in `localConfig`, such as "de_DE"; it is not checked. Without a
/// stored code, which is a first start, returns and stores the code of `systemLanguage` (languageCodeFor()),
/// or "en_US" if that code has no translation file. Also sets the result as the current language of
/// `localConfig`, which selects the help documents.
[[nodiscard]] QString resolveLanguage(CLocalConfig &localConfig, QLocale::Language systemLanguage);
