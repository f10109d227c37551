// The languages of the user interface.
#pragma once

#include <QLocale>
#include <QString>

#include <array>

/// Language codes in the order of the language menu, which uses their indexes. The codes are the names of
/// translation files and values in the settings, so their unusual spellings must not change.
inline constexpr std::array languageCodes = {
    QLatin1StringView("zh_CN"), QLatin1StringView("en_US"), QLatin1StringView("ro_RO"),
    QLatin1StringView("JP_US"), QLatin1StringView("de_DE"), QLatin1StringView("es_ES"),
    QLatin1StringView("fr_FR"), QLatin1StringView("it_IT"), QLatin1StringView("nl_NL"),
    QLatin1StringView("no_NO"), QLatin1StringView("pt_PT"), QLatin1StringView("sv_SV"),
    QLatin1StringView("gl_GL"), QLatin1StringView("ca_CA"),
};

/// The language code for the first start on a system with the given language; "en_US" for languages without a
/// code. Galician and Catalan systems start in English: these languages are only available by the user's
/// choice. Whether there is a translation file is not checked.
[[nodiscard]] QString languageCodeFor(QLocale::Language systemLanguage);
