// The languages of the user interface.
#pragma once

#include <QLocale>
#include <QString>

#include <array>

/// Codes of the languages, in the order of the language menu: an index into this table names a language
/// there. They are names of translation files and stored values, so their odd spellings stay.
inline constexpr std::array languageCodes = {
    QLatin1StringView("zh_CN"), QLatin1StringView("en_US"), QLatin1StringView("ro_RO"),
    QLatin1StringView("JP_US"), QLatin1StringView("de_DE"), QLatin1StringView("es_ES"),
    QLatin1StringView("fr_FR"), QLatin1StringView("it_IT"), QLatin1StringView("nl_NL"),
    QLatin1StringView("no_NO"), QLatin1StringView("pt_PT"), QLatin1StringView("sv_SV"),
    QLatin1StringView("gl_GL"), QLatin1StringView("ca_CA"),
};

/// Language of a first start on a system with the given language. English where none fits; Galician and
/// Catalan are reached only by the user's own choice.
[[nodiscard]] QString languageCodeFor(QLocale::Language systemLanguage);

class CLocalConfig;

/// The language code of this run: the stored one, or, at a first start, the system's, which is then stored.
/// It is also handed to `localConfig` as its current language.
[[nodiscard]] QString resolveLanguage(CLocalConfig &localConfig, QLocale::Language systemLanguage);
