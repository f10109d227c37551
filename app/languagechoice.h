// The language of a start.
#pragma once

#include <QLocale>
#include <QString>

class CLocalConfig;

/// Returns the stored language code. At a first start, returns and stores that of the system, or English if
/// it has no translation file. Sets the result as the current language of `localConfig`.
[[nodiscard]] QString resolveLanguage(CLocalConfig &localConfig, QLocale::Language systemLanguage);
