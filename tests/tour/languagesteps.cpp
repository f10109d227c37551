#include "tests/tour/driver/driver.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

void walkLanguageChange(Driver &driver, const QString &otherLanguage)
{
    driver.click(u"menuButton"_s);
    driver.click(u"languageMenuItem"_s);
    driver.click(u"language_"_s + otherLanguage);
    driver.require(u"okButton"_s);
    driver.report(u"restart-prompt"_s, u"the change requires a restart"_s);
    driver.click(u"cancelButton"_s);
    driver.await(u"the prompt closes"_s, [&] { return !driver.find(u"okButton"_s); });

    driver.click(u"menuButton"_s);
    driver.click(u"languageMenuItem"_s);
    driver.click(u"language_"_s + otherLanguage);
    driver.click(u"okButton"_s);
}
