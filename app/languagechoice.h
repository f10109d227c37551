// The language of a start.
#pragma once

#include <QLocale>
#include <QString>

class CLocalConfig;

/// Returns the language code that is stored in `localConfig`. Without a stored code, which is a first start,
/// returns and stores languageCodeFor(systemLanguage), or "en_US" if that language has no translation file. A
/// stored code is not checked. Sets the result as the current language of `localConfig`.
[[nodiscard]] QString resolveLanguage(CLocalConfig &localConfig, QLocale::Language systemLanguage);
