#include "tests/tour/driver/commonsteps.h"
#include "tests/tour/driver/driver.h"
#include "tests/tour/driver/rows.h"
#include "tests/tour/steps.h"

using namespace Qt::StringLiterals;

namespace {

const QRect geometry(30, 20, 1300, 760);
const QString note = u"东门 3 号杆"_s;

QString columnsText(const Driver &driver)
{
    return driver.require(u"deviceTable"_s)->property("columnsText").toString();
}

void openColumnMenu(const Driver &driver, const QString &head)
{
    driver.rightClick(head);
    driver.await(u"the menu of the columns is open"_s, [&] {
        return driver.find(u"resetColumnsItem"_s) && driver.find(u"resetColumnsItem"_s)->height() > 0;
    });
}

void walkMenu(Driver &driver)
{
    openColumnMenu(driver, u"head_name"_s);
    driver.report(u"column-menu"_s, u"the columns with their check marks"_s);
    driver.click(u"noteItem"_s);
    driver.require(u"head_note"_s);
    driver.report(u"column-notes"_s, u"all columns in the default width"_s);
    openColumnMenu(driver, u"head_num"_s);
    driver.click(u"numItem"_s);
    driver.await(u"the numbers are hidden"_s, [&] { return !driver.find(u"head_num"_s); });
}

void walkKeys(Driver &driver)
{
    driver.require(u"head_mac"_s)->forceActiveFocus(Qt::TabFocusReason);
    for (int step = 0; step < 5; ++step)
        driver.key(Qt::Key_Left, Qt::ControlModifier);
    driver.key(Qt::Key_Right, Qt::AltModifier);
    driver.report(u"column-keys"_s, columnsText(driver));
    driver.key(Qt::Key_Menu);
    driver.require(u"fitColumnItem"_s);
    driver.report(u"column-menu-by-key"_s, u"the menu under the title that has the keyboard"_s);
    driver.key(Qt::Key_Escape);
    driver.await(u"the menu is closed"_s, [&] { return !driver.find(u"fitColumnItem"_s); });
}

void walkNote(Driver &driver)
{
    const Rows rows(driver);
    driver.click(u"row1"_s);
    driver.key(Qt::Key_F2);
    driver.fill(u"noteField"_s, note);
    driver.report(u"note"_s, note);
    driver.click(u"okButton"_s);
    driver.await(u"the note is in its row"_s,
                 [&] { return rows.value(1, "note").toString() == note && !driver.find(u"noteField"_s); });
    driver.rightClick(u"row3"_s);
    driver.await(u"the menu of the row is open"_s,
                 [&] { return driver.find(u"noteItem"_s) && driver.find(u"noteItem"_s)->height() > 0; });
    driver.report(u"note-menu"_s, u"the entry for a note"_s);
    driver.click(u"noteItem"_s);
    driver.fill(u"noteField"_s, u"A"_s + QString(250, u'x'));
    driver.check(driver.text(u"noteField"_s).size() == 200, u"the length of a note is limited"_s);
    driver.click(u"okButton"_s);
    driver.await(u"the second note is in its row"_s, [&] {
        return rows.value(3, "note").toString().startsWith(u'A') && !driver.find(u"noteField"_s);
    });
    driver.click(u"head_note"_s);
    driver.click(u"head_note"_s);
    driver.await(u"the notes are at the top"_s, [&] { return rows.value(0, "note").toString() == note; });
    driver.report(u"notes"_s, u"in descending order"_s);
}

} // namespace

void walkColumns(Driver &driver)
{
    driver.activate();
    walkMenu(driver);
    walkKeys(driver);
    walkNote(driver);
    driver.window()->setGeometry(geometry);
    driver.await(u"the window has its position"_s, [&] { return driver.window()->geometry() == geometry; });
    driver.report(u"columns-wide"_s, u"in a larger window"_s);
    driver.click(u"tab1"_s);
    driver.require(u"upgradeTable"_s);
}

void walkRestored(Driver &driver)
{
    driver.check(driver.find(u"upgradeTable"_s) != nullptr, u"the last tab is open"_s);
    driver.check(driver.window()->geometry() == geometry, u"the window has its last position"_s);
    awaitSearchEnd(driver);
    driver.click(u"tab0"_s);
    const Rows rows(driver);
    driver.check(rows.value(0, "note").toString() == note, u"the note and the order are restored"_s);
    const QQuickItem *mac = driver.require(u"head_mac"_s);
    const QQuickItem *state = driver.require(u"head_state"_s);
    driver.check(mac->x() < state->x() && !driver.find(u"head_num"_s), u"so are the columns"_s);
    driver.report(u"restored"_s, columnsText(driver));
    openColumnMenu(driver, u"head_name"_s);
    driver.click(u"resetColumnsItem"_s);
    driver.require(u"head_num"_s);
    driver.check(columnsText(driver).isEmpty() && !driver.find(u"head_note"_s), u"the default is back"_s);
    driver.report(u"columns-reset"_s, u"the default columns"_s);
    driver.click(u"maximiseButton"_s);
    driver.await(u"the window is maximised"_s,
                 [&] { return driver.window()->visibility() == QWindow::Maximized; });
}

void walkRestoredAgain(Driver &driver)
{
    driver.check(driver.window()->visibility() == QWindow::Maximized, u"the window is maximised again"_s);
    awaitSearchEnd(driver);
    driver.check(!driver.find(u"head_note"_s), u"the columns are the default ones"_s);
    driver.check(driver.find(u"noteSign0"_s) != nullptr, u"the name has the sign of a note"_s);
    driver.click(u"noteSign0"_s);
    driver.check(driver.text(u"noteField"_s) == note, u"the sign opens the note"_s);
    driver.key(Qt::Key_Escape);
    driver.await(u"the note is closed"_s, [&] { return !driver.find(u"noteField"_s); });
    driver.report(u"restored-maximised"_s, u"with the sign of a note"_s);
    driver.click(u"maximiseButton"_s);
    driver.await(u"the window has its size again"_s,
                 [&] { return driver.window()->size() == geometry.size(); });
}
