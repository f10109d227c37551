// The arrangement of a table's columns: its text form, and changes by mouse and keyboard.
#include "device/models/devicetablemodel.h"
#include "qml/configtools/tablecolumns.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene =
    "    width: 1280; height: 720; visible: true\n"
    "    property string sorted\n"
    "    OVTable {\n"
    "        objectName: 'table'; width: 700; height: 200; model: devices; arrangeable: true\n"
    "        columns: [{key: 'name', title: 'Name', width: 200, sortable: true},\n"
    "                  {key: 'ipport', title: 'Address', width: 160, sortable: true},\n"
    "                  {key: 'type', title: 'Type', width: 100, hidden: true},\n"
    "                  {key: 'mac', title: 'MAC', width: 100},\n"
    "                  {key: 'operate', title: 'Actions', width: 80, fixed: true}]\n"
    "        onSortRequested: key => sorted = key\n"
    "    }\n"
    "    ModifyIPTable {\n"
    "        objectName: 'wide'; y: 300; width: 1248; height: 200; model: devices\n"
    "        deviceFactory: factory; ipv6: false\n"
    "    }\n";

const QStringList allKeys = {"name", "ipport", "type", "mac", "operate"};

} // namespace

class TestTableColumns : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<RowsFactory> m_site;
    std::unique_ptr<DeviceTableModel> m_rows;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    static void describe(TableColumns &columns)
    {
        columns.setKeys(allKeys);
        columns.setHiddenKeys({"type"});
        columns.setFixedKeys({"operate"});
    }

    /// The shown columns with widths set by the user, such as "name:180 mac".
    static QString arrangementOf(const TableColumns &columns)
    {
        QStringList texts;
        const QVariantMap widths = columns.widths();
        for (const QString &key : columns.shown())
            texts.append(widths.contains(key) ? key + ':' + widths.value(key).toString() : key);
        return texts.join(' ');
    }

    [[nodiscard]] QQuickItem *table() const
    {
        return findBelow(m_window->contentItem(), "table", Sight::Visible);
    }
    [[nodiscard]] QQuickItem *head(const QString &key) const
    {
        return findBelow(table(), "head_" + key, Sight::Visible);
    }
    [[nodiscard]] QQuickItem *entry(const QString &key) const
    {
        return findBelow(m_window->contentItem(), key + "Item", Sight::Visible);
    }
    [[nodiscard]] QString text() const { return table()->property("columnsText").toString(); }
    [[nodiscard]] QPoint middleOf(const QQuickItem *item) const
    {
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    [[nodiscard]] QPoint borderOf(const QString &key) const
    {
        return head(key)->mapToScene({head(key)->width() - 3, head(key)->height() / 2}).toPoint();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }
    void drag(QPoint from, QPoint to) const
    {
        QTest::mousePress(m_window.get(), Qt::LeftButton, {}, from);
        for (int step = 1; step <= 8; ++step)
            QTest::mouseMove(m_window.get(), from + (to - from) * step / 8);
        QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, to);
    }
    void openMenu(const QString &key) const
    {
        QTest::mouseClick(m_window.get(), Qt::RightButton, {}, middleOf(head(key)));
        awaitMenu();
    }
    /// Waits until the menu with its entries is open.
    void awaitMenu() const
    {
        QTRY_VERIFY(entry("resetColumns") && entry("mac") && entry("mac")->y() > 0 &&
                    entry("resetColumns")->y() > entry("mac")->y());
    }
    void choose(const QString &key) const
    {
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middleOf(entry(key)));
        QTRY_VERIFY(!entry("resetColumns"));
    }
    /// The titles from left to right. Fails if titles overlap.
    [[nodiscard]] QStringList heads(const QString &name) const
    {
        QMap<qreal, QQuickItem *> byPosition;
        const QQuickItem *shown = findBelow(m_window->contentItem(), name, Sight::Visible);
        collect(const_cast<QQuickItem *>(shown), byPosition);
        QStringList keys;
        qreal end = 0;
        for (auto position = byPosition.cbegin(); position != byPosition.cend(); ++position) {
            keys.append(position.value()->objectName().mid(5));
            if (position.key() < end)
                keys.append("over the one before it");
            end = position.key() + position.value()->width();
        }
        return keys;
    }
    static void collect(QQuickItem *item, QMap<qreal, QQuickItem *> &byPosition)
    {
        if (item->isVisible() && item->objectName().startsWith("head_"))
            byPosition.insert(item->mapToScene({}).x(), item);
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collect(child, byPosition);
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<RowsFactory>();
        m_site->rows->add({.address = "10.0.0.5", .mac = "m1", .type = "IPC", .name = "Gate"});
        m_site->rows->add({.address = "10.0.0.6",
                           .mac = "m2",
                           .type = "IPC",
                           .name = "Hall with a name that is longer than its column"});
        m_rows = std::make_unique<DeviceTableModel>();
        m_rows->setDeviceFactory(&m_site->factory);
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene, {{"devices", m_rows.get()}, {"factory", &m_site->factory}});
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(findBelow(table(), "row1", Sight::Visible));
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_rows.reset();
        m_site.reset();
    }

    void arrangementsAreRead_data()
    {
        const auto row = dataTable<QString, QString>({"text", "arrangement"});
        const QString usual = "name ipport mac operate";
        row("nothing", "", usual);
        row("order, widths, hidden ones", "mac:150 -name ipport type:90 operate:100",
            "mac:150 ipport type:90 operate:100");
        row("surrounding spaces", "  mac\tname   ipport -type operate ", "mac name ipport operate");
        row("widths that make no sense", "name:wide ipport:3 -type mac:99999999999 operate:-7", usual);
        row("columns of another version", "name serial:80 ipport -type -uuid mac operate", usual);
        row("a column twice", "name:100 -name mac name:300", "name:100 ipport mac operate");
        row("missing columns follow their predecessor", "mac name", "mac name ipport operate");
        row("all are hidden", "-name -ipport -type -mac -operate", usual);
        row("a fixed one goes nowhere", "-operate:90 mac name ipport", "mac name ipport operate:90");
        row("signs only", "- : -: :5 name::", usual);
        row("too long", QString("mac ").repeated(2000), usual);
    }

    void arrangementsAreRead()
    {
        QFETCH(QString, text);
        TableColumns early; // the text may be set before the columns
        early.setText(text);
        describe(early);
        QTEST(arrangementOf(early), "arrangement");
        TableColumns late;
        describe(late);
        late.setText(text);
        QTEST(arrangementOf(late), "arrangement");
    }

    /// A written arrangement is read unchanged. The default has an empty text.
    void arrangementsAreWrittenUnchanged()
    {
        TableColumns columns;
        describe(columns);
        columns.move("mac", 0);
        columns.setShown("ipport", false);
        columns.setShown("type", true);
        columns.setWidth("name", 5);
        columns.setWidth("type", 333);
        columns.move("type", 99);
        QCOMPARE(arrangementOf(columns), "mac name:24 type:333 operate");
        TableColumns other;
        describe(other);
        other.setText(columns.text());
        QCOMPARE(arrangementOf(other), arrangementOf(columns));
        other.setShown("ipport", true); // at its old position
        QCOMPARE(arrangementOf(other), "mac name:24 ipport type:333 operate");
        other.reset();
        QCOMPARE(other.text(), "");
        QCOMPARE(arrangementOf(other), "name ipport mac operate");
    }

    void theLastColumnCannotBeHidden()
    {
        TableColumns columns;
        describe(columns);
        for (const QString &key : allKeys)
            columns.setShown(key, false);
        QCOMPARE(arrangementOf(columns), "mac operate");
        QVERIFY(!columns.canHide("mac") && !columns.canHide("operate"));
    }

    void aDraggedHeadMovesItsColumn_data()
    {
        const auto row = dataTable<QString, QString, QStringList>({"dragged", "to", "order"});
        row("to the front", "mac", "name", {"mac", "name", "ipport", "operate"});
        row("after the next", "name", "ipport", {"ipport", "name", "mac", "operate"});
        row("after the fixed one", "name", "operate", {"ipport", "mac", "name", "operate"});
        row("a fixed one", "operate", "name", {"name", "ipport", "mac", "operate"});
    }

    void aDraggedHeadMovesItsColumn()
    {
        QFETCH(QString, dragged);
        QFETCH(QString, to);
        const bool forward = head(to)->x() > head(dragged)->x();
        drag(middleOf(head(dragged)), middleOf(head(to)) + QPoint(forward ? 20 : -20, 0));
        QFETCH(QStringList, order);
        QTRY_COMPARE(heads("table"), order);
        QCOMPARE(m_window->property("sorted").toString(), ""); // not a click
        QVERIFY(!findBelow(table(), "dropMark", Sight::Visible));
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middleOf(head("name")));
        QCOMPARE(m_window->property("sorted").toString(), "name");
    }

    void aBorderIsDraggedOrFitted()
    {
        const qreal before = head("name")->width();
        drag(borderOf("name"), borderOf("name") + QPoint(-60, 0));
        QVERIFY(std::abs(head("name")->width() - (before - 60)) < 8);
        drag(borderOf("name"), borderOf("name") + QPoint(-500, 0));
        QCOMPARE(head("name")->width(), 40.0);

        QTest::mouseDClick(m_window.get(), Qt::LeftButton, {}, borderOf("name"));
        QTRY_VERIFY(head("name")->width() > before);
        const auto isCut = [this] {
            QQuickItem *row = findBelow(table(), "row1", Sight::Visible);
            return findCut(row);
        };
        QTRY_VERIFY(!isCut());
        const qreal fitting = head("name")->width();
        QTRY_COMPARE(head("ipport")->x(), head("name")->x() + fitting); // the heads are in position
        drag(borderOf("name"), borderOf("name") + QPoint(-30, 0));      // so it is not wider than necessary
        QTRY_VERIFY(isCut());
        QTest::mouseDClick(m_window.get(), Qt::LeftButton, {}, borderOf("name"));
        QTRY_COMPARE(head("name")->width(), fitting);
    }

    void theMenuShowsAndHides()
    {
        openMenu("name");
        QVERIFY(entry("name")->property("checked").toBool() && !entry("type")->property("checked").toBool());
        QVERIFY(!entry("operate"));
        QVERIFY(!entry("resetColumns")->isEnabled()); // the arrangement is the default
        choose("type");
        QTRY_COMPARE(heads("table"), QStringList({"name", "ipport", "type", "mac", "operate"}));
        for (const char *key : {"name", "ipport", "mac"}) {
            openMenu("operate");
            choose(key);
        }
        QTRY_COMPARE(heads("table"), QStringList({"type", "operate"}));
        openMenu("type");
        QVERIFY(!entry("type")->isEnabled()); // the last shown column
        choose("resetColumns");
        QTRY_COMPARE(heads("table"), QStringList({"name", "ipport", "mac", "operate"}));
        QCOMPARE(text(), "");
    }

    void theKeyboardArranges()
    {
        head("name")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Right, Qt::ControlModifier);
        QTRY_COMPARE(heads("table"), QStringList({"ipport", "name", "mac", "operate"}));
        QVERIFY(head("name")->hasActiveFocus()); // and keeps the focus
        for (int presses = 0; presses < 4; ++presses)
            press(Qt::Key_Left, Qt::ControlModifier);
        QTRY_COMPARE(heads("table"), QStringList({"name", "ipport", "mac", "operate"}));
        QVERIFY(head("name")->hasActiveFocus());

        const qreal before = head("name")->width();
        press(Qt::Key_Right, Qt::AltModifier);
        press(Qt::Key_Right, Qt::AltModifier);
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(head("name")->width(), before + 8);
        press(Qt::Key_Right);
        QVERIFY(head("ipport")->hasActiveFocus());

        press(Qt::Key_F10, Qt::ShiftModifier);
        awaitMenu();
        for (int step = 0; step < 10 && !entry("ipport")->hasActiveFocus(); ++step)
            press(Qt::Key_Down);
        press(Qt::Key_Return);
        QTRY_COMPARE(heads("table"), QStringList({"name", "mac", "operate"}));
        QTRY_VERIFY(head("mac")->hasActiveFocus()); // which is in position
    }

    /// In a narrow table the focused title is scrolled into view.
    void focusedTitlesAreScrolledIntoView()
    {
        table()->setWidth(300);
        const auto isInView = [this](const QString &key) {
            const QRectF shown = head(key)->mapRectToItem(table(), head(key)->boundingRect());
            return shown.left() >= 0 && shown.right() <= 300;
        };
        QTRY_VERIFY(!isInView("mac"));
        head("name")->forceActiveFocus(Qt::TabFocusReason);
        for (int position = 0; position < 2; ++position)
            press(Qt::Key_Right, Qt::ControlModifier);
        QTRY_VERIFY(isInView("name"));
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        QTRY_VERIFY(head("ipport")->hasActiveFocus() && isInView("ipport"));
    }

    /// The main page's table in a window of the default size.
    void notesFitNextToTheOtherColumns()
    {
        QQuickItem *wide = findBelow(m_window->contentItem(), "wide", Sight::Visible);
        const QStringList usual = heads("wide");
        QCOMPARE(usual.size(), 10);
        wide->setProperty("columnsText", "num note");
        QTRY_COMPARE(heads("wide").size(), 11);
        QVERIFY2(!heads("wide").contains("over the one before it"), qPrintable(heads("wide").join(' ')));
        const QQuickItem *actions = findBelow(wide, "head_operate", Sight::Visible);
        QVERIFY(actions->mapToItem(wide, {actions->width(), 0}).x() <= wide->width());
        const QQuickItem *live = findBelow(wide, "live1", Sight::Visible);
        QVERIFY(live && live->mapToItem(wide, {live->width(), 0}).x() <= wide->width());
    }

private:
    /// True if a text of the row is truncated.
    static bool findCut(QQuickItem *item)
    {
        if (item->property("truncated").toBool())
            return true;
        const QList<QQuickItem *> children = item->childItems();
        return std::any_of(children.cbegin(), children.cend(),
                           [](QQuickItem *child) { return findCut(child); });
    }
};

QTEST_MAIN(TestTableColumns)
#include "tst_tablecolumns.moc"
