#include "app/languages.h"

QString languageCodeFor(QLocale::Language systemLanguage)
{
    switch (systemLanguage) {
    case QLocale::Chinese:
        return QStringLiteral("zh_CN");
    case QLocale::Romanian:
        return QStringLiteral("ro_RO");
    case QLocale::Japanese:
        return QStringLiteral("JP_US");
    case QLocale::German:
        return QStringLiteral("de_DE");
    case QLocale::Spanish:
        return QStringLiteral("es_ES");
    case QLocale::French:
        return QStringLiteral("fr_FR");
    case QLocale::Italian:
        return QStringLiteral("it_IT");
    case QLocale::Dutch:
        return QStringLiteral("nl_NL");
    case QLocale::NorwegianBokmal:
        return QStringLiteral("no_NO");
    case QLocale::Portuguese:
        return QStringLiteral("pt_PT");
    case QLocale::Swedish:
        return QStringLiteral("sv_SV");
    case QLocale::English:
    default:
        return QStringLiteral("en_US");
    }
}
