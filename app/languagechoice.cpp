#include "app/languagechoice.h"

#include "app/languages.h"
#include "app/localconfig.h"

QString resolveLanguage(CLocalConfig &localConfig, QLocale::Language systemLanguage)
{
    QString code = localConfig.getLanguage();
    if (code.isEmpty()) {
        code = languageCodeFor(systemLanguage);
        if (!localConfig.hasTranslation(code))
            code = QStringLiteral("en_US");
        localConfig.setLanguage(code);
    }
    localConfig.setCurrentLanguage(code);
    return code;
}
