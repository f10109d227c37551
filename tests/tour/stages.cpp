#include "tests/tour/stages.h"

#include "app/localconfig.h"
#include "tests/files/filecontents.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/steps.h"
#include "tests/tour/users/usersteps.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using sdk::demo::DemoSite;

namespace {

void leaveForOtherLanguage(Driver &driver)
{
    driver.check(writeFile(restartFile(driver.imageFolder()), "restarted"), u"the restart is noted"_s);
    walkLanguageChange(driver, otherLanguage(CLocalConfig::getinstance()->getLanguage()));
}

} // namespace

const QList<Stage> &stagesOfTour()
{
    static const QList<Stage> stages = {
        {.name = u"installer"_s,
         .scene = u"factory"_s,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkInstaller(driver);
             }},
        {.name = u"administrator"_s,
         .scene = u"fleet:200"_s,
         .password = u"Installer-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkAdministrator(driver, *site);
                 walkBatches(driver, *site, driver.imageFolder());
             }},
        {.name = u"newcomer"_s,
         .scene = emptyScene(),
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkNewcomer(driver);
             }},
        {.name = u"nodevices"_s,
         .drive = [](Driver &driver, DemoSite *) { walkNoDevices(driver); },
         .leave = walkToDemoSite,
         .isReplaced = true},
        {.name = u"impatient"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkImpatient(driver, *site);
             },
         .leave = walkEndDuringBatch},
        {.name = u"keyboard"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkKeyboard(driver, *site);
             },
         .leave = walkOutByKeyboard},
        {.name = u"looks"_s,
         .scene = u"office"_s,
         .password = u"Office-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkFirstSearch(driver);
                 walkLooks(driver);
             }},
        {.name = u"columns"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkFirstSearch(driver);
                 walkColumns(driver);
             }},
        {.name = u"restored"_s,
         .scene = u"office"_s,
         .continues = true,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkRestored(driver);
             }},
        {.name = u"restoredagain"_s,
         .scene = u"office"_s,
         .continues = true,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkRestoredAgain(driver);
             }},
        {.name = u"known"_s,
         .scene = u"office"_s,
         .continues = true,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkKnown(driver, *site, driver.imageFolder() + u"/sites"_s);
             }},
        {.name = u"gallery"_s,
         .scene = u"office"_s,
         .password = u"Office-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkGallery(driver, *site, driver.imageFolder() + u"/images"_s);
                 walkSiteReport(driver, driver.imageFolder() + u"/report"_s);
             }},
        {.name = u"manual"_s,
         .scene = u"office"_s,
         .password = u"Office-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 takeManualImages(driver, *site);
             }},
        {.name = u"table"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkFirstSearch(driver);
                 walkTable(driver);
                 walkWindow(driver);
             }},
        {.name = u"configuration"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkConfiguration(driver, *site);
                 walkChannelNames(driver, *site, driver.imageFolder() + u"/details"_s);
             }},
        {.name = u"live"_s,
         .scene = u"office"_s,
         .password = u"Office-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkLive(driver, *site, driver.imageFolder() + u"/windows"_s);
                 walkCommands(driver, driver.imageFolder() + u"/commands"_s);
             }},
        {.name = u"devices"_s,
         .scene = u"office"_s,
         .password = u"Office-2024"_s,
         .drive =
             [](Driver &driver, DemoSite *) {
                 walkFirstSearch(driver);
                 walkAdding(driver);
                 walkSearchSettings(driver);
                 walkDevices(driver);
                 walkLists(driver, driver.imageFolder() + u"/lists"_s);
             }},
        {.name = u"upgrade"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkUpgrade(driver, *site, driver.imageFolder() + u"/files"_s);
             }},
        {.name = u"system"_s,
         .scene = u"office"_s,
         .drive =
             [](Driver &driver, DemoSite *site) {
                 walkFirstSearch(driver);
                 walkSystem(driver, *site);
                 walkSecondStart(driver, driver.imageFolder());
             },
         .leave = leaveForOtherLanguage,
         .isReplaced = true},
    };
    return stages;
}

QString otherLanguage(const QString &language)
{
    return language == u"zh_CN" ? u"en_US"_s : u"zh_CN"_s;
}

QString restartFile(const QString &folder)
{
    return folder + u"/restarted.txt"_s;
}

namespace {

const Stage &soakStage()
{
    constexpr int minutesForLastRound = 30;
    static const Stage stage = {.name = u"soak"_s,
                                .scene = u"faulty"_s,
                                .password = u"Office-2024"_s,
                                .minutes = soakMinutes() + minutesForLastRound,
                                .drive = [](Driver &driver, DemoSite *site) {
                                    walkSoak(driver, *site);
                                }};
    return stage;
}

} // namespace

const Stage *stageOfTour(const QString &name)
{
    if (name == soakStage().name)
        return &soakStage();
    const auto stage = std::ranges::find(stagesOfTour(), name, &Stage::name);
    return stage == stagesOfTour().end() ? nullptr : &*stage;
}
