#include "tests/tour/driver.h"
#include "tests/tour/steps.h"

void walkLanguageChange(Driver &driver, const QString &otherLanguage)
{
    driver.click(QStringLiteral("menuButton"));
    driver.click(QStringLiteral("languageMenuItem"));
    driver.click(QStringLiteral("language_") + otherLanguage);
    driver.require(QStringLiteral("okButton"));
    driver.report(QStringLiteral("restart-prompt"), QStringLiteral("the change takes a restart"));
    driver.click(QStringLiteral("cancelButton"));
    driver.await(QStringLiteral("the prompt closes"),
                 [&] { return !driver.find(QStringLiteral("okButton")); });

    driver.click(QStringLiteral("menuButton"));
    driver.click(QStringLiteral("languageMenuItem"));
    driver.click(QStringLiteral("language_") + otherLanguage);
    driver.click(QStringLiteral("okButton"));
}
