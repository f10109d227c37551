// Use without a mouse: the actions of a row, focus navigation, and rejected input.
#include "device/batch/batches.h"
#include "device/models/devicetablemodel.h"
#include "device/models/treemodel.h"
#include "tests/datatable.h"
#include "tests/device/rowsbackend.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

const char *const scene =
    "    width: 1280; height: 720; visible: true\n"
    "    property string done\n"
    "    DeviceActions {\n"
    "        id: deviceActions; deviceFactory: factory; fileDialogs: null; webPages: null\n"
    "    }\n"
    "    DeviceMenu {\n"
    "        id: menu; actions: deviceActions; batches: works\n"
    "        onLiveRequested: ipport => done = 'live ' + ipport\n"
    "        onOwnChosen: (key, values) => done = key + ' ' + values.mac\n"
    "        onSimilarRequested: (key, values) => devices.checkSimilar(devices.rowOf(values.identity), key)\n"
    "    }\n"
    "    Row {\n"
    "        readonly property bool keyGroup: true\n"
    "        height: 40\n"
    "        OVButton { objectName: 'first'; text: '1' }\n"
    "        OVButton { objectName: 'disabled'; text: '2'; enabled: false }\n"
    "        OVCheckBox { objectName: 'box'; text: '3' }\n"
    "        OVButton { objectName: 'last'; text: '4' }\n"
    "    }\n"
    "    OVTextField { objectName: 'password'; x: 600; secret: true; text: 'p' }\n"
    "    OVTextField { objectName: 'next'; x: 900 }\n"
    "    Shortcut { sequence: 'Escape'; onActivated: done = 'stopped' }\n"
    "    OVTable {\n"
    "        objectName: 'table'; y: 100; width: 600; height: 240; model: devices\n"
    "        checkState: devices.checkState\n"
    "        columns: [{key: 'ipport', title: 'Address', width: 300, sortable: true},\n"
    "                  {key: 'model', title: 'Model', width: 200, sortable: true}]\n"
    "        onMenuRequested: (row, position) => menu.openAt(position, devices.get(row), [{key: 'edit', "
    "text: "
    "'Edit'}])\n"
    "        onRowActivated: row => done = 'open ' + devices.get(row).mac\n"
    "    }\n"
    "    SystemDeviceTree {\n"
    "        x: 640; y: 100; width: 400; height: 300; devices: groups; describer: null; busyDevice: ''\n"
    "        searching: false; libraryInstalled: true\n"
    "        onDetailRequested: name => done = 'open ' + name\n"
    "        onMenuRequested: (name, position) => menu.openAt(position, {identity: name, mac: name, ipport: "
    "'10.0.0.9:1'}, [])\n"
    "    }\n"
    "    OVTextField { objectName: 'search'; x: 600; y: 50; clearable: true }\n"
    "    OVDialog {\n"
    "        id: dialog; objectName: 'dialog'\n"
    "        property string fault\n"
    "        onAccepted: { fault = 'wrong'; refuse(fault); }\n"
    "        Column {\n"
    "            width: 300\n"
    "            OVTextField { objectName: 'right'; width: 300 }\n"
    "            OVTextField { objectName: 'faulty'; width: 300; errorText: dialog.fault }\n"
    "        }\n"
    "    }\n"
    "    OVToast { objectName: 'notices' }\n"
    "    OVSlider { objectName: 'beyond'; y: 600; to: 10; value: 12; onCommitted: value => done = 'set ' + "
    "value }\n"
    "    OVSlider { objectName: 'single'; y: 640; from: 3; to: 3; value: 3; onCommitted: value => done = "
    "'set ' + value "
    "}\n";

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<RowsFactory> m_site;
    std::unique_ptr<BatchEngine> m_threads;
    std::unique_ptr<Batches> m_batches;
    std::unique_ptr<DeviceTableModel> m_table;
    std::unique_ptr<OVTreeModel> m_tree;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name, Sight::Visible);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_window.get(), key, modifiers);
    }
    [[nodiscard]] bool has(const QString &name) const { return find(name) && find(name)->hasActiveFocus(); }
    [[nodiscard]] QString done() const { return m_window->property("done").toString(); }
    [[nodiscard]] int currentRow() const { return find("table")->property("currentIndex").toInt(); }

    void add(const ResponseTexts &texts, const QString &model) const
    {
        m_site->rows->add(texts);
        QJsonObject row = m_site->rows->ipv4.last().toJsonObject();
        row.insert(DeviceRowKey::model, model);
        m_site->rows->ipv4.last() = row;
    }
    void focusTable() const
    {
        find("table")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
    }
    void clickRow(const QString &name, Qt::MouseButton button) const
    {
        const QQuickItem *row = find(name);
        QVERIFY(row);
        QTest::mouseClick(m_window.get(), button, {}, row->mapToScene({150, row->height() / 2}).toPoint());
    }
    /// Waits until the menu with its entries is open.
    void awaitMenu() const { QTRY_VERIFY(find("detailItem") && find("detailItem")->height() > 0); }
    /// Selects an entry with the arrow keys and Enter.
    void take(const QString &entry) const
    {
        for (int step = 0; step < 20 && !has(entry); ++step)
            press(Qt::Key_Down);
        QVERIFY2(has(entry), qPrintable(entry));
        press(Qt::Key_Return);
        QTRY_VERIFY(!find("detailItem"));
    }

private Q_SLOTS:
    void init()
    {
        m_site = std::make_unique<RowsFactory>();
        add({.address = "10.0.0.5", .mac = "m1", .type = "IPC", .name = "Gate"}, "A");
        add({.address = "10.0.0.12", .mac = "m2", .type = "NVR", .name = "Hall 1"}, "B");
        add({.address = "10.0.0.13", .mac = "m3", .type = "IPC", .name = "Hall 2"}, "B");
        add({.address = "10.0.1.1",
             .mac = "m4",
             .type = "IPC",
             .name = "Yard",
             .state = sdk::InitialisationBits::Uninitialised},
            "A");
        m_threads = std::make_unique<BatchEngine>(nullptr);
        m_batches = std::make_unique<Batches>(m_site->factory, *m_threads, [] { return 1; });
        m_table = std::make_unique<DeviceTableModel>();
        m_table->setDeviceFactory(&m_site->factory);
        m_tree = std::make_unique<OVTreeModel>();
        m_tree->setDeviceFactory(&m_site->factory);
        m_tree->resetItems("removeuninit", {});
        m_engine = std::make_unique<QQmlEngine>();
        m_window = openScene(*m_engine, scene,
                             {{"factory", &m_site->factory},
                              {"works", m_batches.get()},
                              {"devices", m_table.get()},
                              {"groups", m_tree.get()}});
        QVERIFY(m_window);
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(find("row3"));
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
        m_tree.reset();
        m_table.reset();
        m_threads->end();
        m_batches.reset();
        m_threads.reset();
        m_site.reset();
    }

    void theMenuOfARowOpens_data()
    {
        const auto row = dataTable<int, int>({"key", "modifiers"});
        row("menu key", Qt::Key_Menu, 0);
        row("Shift+F10", Qt::Key_F10, Qt::ShiftModifier);
        row("right mouse button", 0, 0);
    }

    void theMenuOfARowOpens()
    {
        QFETCH(const int, key);
        QFETCH(const int, modifiers);
        if (key == 0) {
            clickRow("row1", Qt::RightButton);
        } else {
            focusTable();
            press(Qt::Key_Down);
            press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        }
        awaitMenu();
        QCOMPARE(currentRow(), 1);
        take("copyAddressItem");
        QCOMPARE(QGuiApplication::clipboard()->text(), "10.0.0.12");
        QTRY_VERIFY(has("tableRows")); // the table has the focus again
    }

    void theMenuHasTheEntriesOfItsRow_data()
    {
        const auto row = dataTable<QString, QString>({"entry", "outcome"});
        row("of the page", "editItem", "edit m2");
        row("live view", "liveItem", "live 10.0.0.12:37777");
    }

    void theMenuHasTheEntriesOfItsRow()
    {
        QFETCH(QString, entry);
        focusTable();
        press(Qt::Key_Down);
        press(Qt::Key_Menu);
        awaitMenu();
        take(entry);
        QTEST(done(), "outcome");
    }

    /// Actions that an uninitialised device does not support are disabled, and so is a retry without
    /// failures.
    void onlySupportedEntriesAreEnabled()
    {
        clickRow("row3", Qt::RightButton);
        awaitMenu();
        for (const char *entry : {"liveItem", "favouriteItem", "retryItem"})
            QVERIFY2(!find(entry)->isEnabled(), entry);
        QVERIFY(find("editItem")->isEnabled() && find("webItem")->isEnabled());
    }

    void similarDevicesAreTicked_data()
    {
        const auto row = dataTable<QString, QStringList>({"entry", "macs"});
        row("type", "similarTypeItem", {"m1", "m3", "m4"});
        row("model", "similarModelItem", {"m2", "m3"});
    }

    void similarDevicesAreTicked()
    {
        QFETCH(QString, entry);
        m_table->setChecked(1, true);
        focusTable();
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Menu);
        awaitMenu();
        take(entry);
        QTEST(m_table->checkedMacs(), "macs");
    }

    void aTreeHasTheMenu()
    {
        QQuickItem *tree = find("deviceTree");
        tree->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
        press(Qt::Key_Menu); // a group has no actions
        QVERIFY(!find("detailItem"));
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QCOMPARE(done(), "open m1");
        press(Qt::Key_A, Qt::ControlModifier);
        QVERIFY(m_tree->checkedCount() > 1 && m_tree->checkedCount() == m_tree->deviceCount());
        m_tree->setAllChecked(false);
        press(Qt::Key_Menu);
        awaitMenu();
        take("copyMacItem");
        QCOMPARE(QGuiApplication::clipboard()->text(), "m1");
        clickRow("device_10.0.0.13:37777", Qt::RightButton);
        awaitMenu();
        take("copyMacItem");
        QCOMPARE(QGuiApplication::clipboard()->text(), "m3");
    }

    void checkBoxesOfTreeAndTableLookAlike_data()
    {
        const auto row = dataTable<int>({"ticked"});
        row("none", 0);
        row("some", 1);
        row("all", 2);
    }

    /// The boxes for all rows and of a group have three states.
    void checkBoxesOfTreeAndTableLookAlike()
    {
        QFETCH(const int, ticked);
        m_table->setAllChecked(ticked == 2);
        m_tree->setAllChecked(ticked == 2);
        if (ticked == 1) {
            m_table->setChecked(0, true);
            m_tree->setCheckedDevices({"m1"});
        }
        const auto boxOf = [this](const char *name) {
            constexpr int size = 12; // inside its border, whose corners are transparent
            const QQuickItem *item = find(name);
            const QPoint middle = item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
            const QImage image = m_window->grabWindow();
            const qreal scale = image.devicePixelRatio();
            return image.copy(
                QRect((middle - QPoint(size / 2, size / 2)) * scale, QSize(size, size) * scale));
        };
        const QImage box = boxOf("checkAllBox");
        QVERIFY(!box.isNull());
        QCOMPARE(boxOf("allDevicesBox"), box);
        QCOMPARE(boxOf("tick_IPC"), box);
    }

    void keysMoveInTheTable_data()
    {
        const auto row = dataTable<QString, int>({"typed", "current"});
        row("address", "10.0.0.13", 2);
        row("address in two groups", "10.0.1", 3);
        row("name in lower case", "hall", 1);
        row("name with a space", "Hall 2", 2);
        row("nothing begins so", "x", 0);
    }

    void keysMoveInTheTable()
    {
        QFETCH(QString, typed);
        focusTable();
        for (const QChar letter : typed)
            QTest::keyClick(m_window.get(), letter.toLatin1());
        QTEST(currentRow(), "current");
        QCOMPARE(m_table->checkedCount(), 0);
        press(Qt::Key_End);
        press(Qt::Key_Return);
        QCOMPARE(done(), "open m4");
    }

    /// Arrow keys move within the group, Tab leaves it.
    void aGroupOfControlsIsOneTabStop()
    {
        find("first")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Right);
        QVERIFY(has("box"));
        press(Qt::Key_Right);
        QVERIFY(has("last"));
        press(Qt::Key_Right);
        QVERIFY(has("first"));
        press(Qt::Key_Tab);
        QVERIFY(has("password"));
        press(Qt::Key_Tab); // skips the button that shows the password
        QVERIFY(has("next"));
        press(Qt::Key_Tab);
        QVERIFY(has("head_ipport") || has("checkAllBox"));
        press(Qt::Key_Tab);
        QVERIFY(has("tableRows"));
        press(Qt::Key_Down);
        QVERIFY(currentRow() >= 0);
    }

    /// Arrow keys select enabled filters. No device has failed.
    void theFilterOfATreeIsOneTabStop()
    {
        find("treeSearchField")->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Tab);
        QVERIFY(has("allStates"));
        press(Qt::Key_Tab);
        QVERIFY(has("deviceTree"));
        press(Qt::Key_Backtab);
        QVERIFY(has("allStates"));
        press(Qt::Key_Right);
        QVERIFY(has("loggedOutStates"));
        QCOMPARE(m_tree->shown(), OVTreeModel::LoggedOut);
        press(Qt::Key_Tab);
        QVERIFY(has("deviceTree"));
        press(Qt::Key_Backtab);
        QVERIFY(has("loggedOutStates"));
        press(Qt::Key_Left);
        QVERIFY(has("allStates"));
        QCOMPARE(m_tree->shown(), OVTreeModel::All);
    }

    /// The message is shown once, at the focused field.
    void rejectedInputGetsTheFocus()
    {
        QObject *dialog = m_window->findChild<QObject *>("dialog");
        QMetaObject::invokeMethod(dialog, "open");
        QTRY_VERIFY(dialog->property("opened").toBool());
        find("right")->forceActiveFocus();
        press(Qt::Key_Return);
        QVERIFY(has("faulty"));
        QVERIFY(!find("dialogNotice"));
        // A message without a field is shown in the dialog.
        find("faulty")->setProperty("errorText", QString());
        QMetaObject::invokeMethod(dialog, "refuse", Q_ARG(QVariant, "nothing is ticked"));
        QTRY_VERIFY(find("dialogNotice"));
        QMetaObject::invokeMethod(dialog, "close");
    }

    void escapeClearsTheSearchTextBeforeItStopsTheBatch()
    {
        QQuickItem *search = find("search");
        search->forceActiveFocus();
        search->setProperty("text", "upgrade");
        press(Qt::Key_Escape);
        QCOMPARE(search->property("text").toString(), "");
        QCOMPARE(done(), "");
        press(Qt::Key_Escape);
        QCOMPARE(done(), "stopped");
    }

    /// A refusal is removed with its reason, another message is not. The latest message is shown, next to the
    /// tabs.
    void refusalsAreRemovedWithTheirReason()
    {
        QObject *notices = m_window->findChild<QObject *>("notices");
        constexpr int success = 1;
        constexpr int refusal = 3;
        for (const auto &[message, kind] : {std::pair("saved", success), {"nothing is ticked", refusal}})
            QMetaObject::invokeMethod(notices, "show", Q_ARG(QVariant, message), Q_ARG(QVariant, kind),
                                      Q_ARG(QVariant, 60'000));
        QTRY_COMPARE(findAll("toastText"), QStringList("nothing is ticked"));
        QCOMPARE(find("toastsWaiting")->property("text").toString(), "+1");
        const QRectF band(900, 42, 300, 56);
        notices->setProperty("area", band);
        const QQuickItem *toast = find("toast");
        QTRY_VERIFY(band.contains(toast->mapRectToScene(toast->boundingRect())));
        QMetaObject::invokeMethod(notices, "removeRefusals");
        QTRY_COMPARE(findAll("toastText"), QStringList("saved"));
        QMetaObject::invokeMethod(notices, "clear");
        QTRY_VERIFY(!find("toastText"));
    }

    void aLongMessageStaysLonger_data()
    {
        const auto row = dataTable<QString, int>({"message", "seconds"});
        row("short", "saved", 4);
        row("long", QString(150, 'x'), 10);
        row("long, in Chinese", QString(50, u'设'), 10);
        row("very long", QString(2000, 'x'), 20);
    }

    void aLongMessageStaysLonger()
    {
        QFETCH(const QString, message);
        QFETCH(const int, seconds);
        QObject *notices = m_window->findChild<QObject *>("notices");
        QMetaObject::invokeMethod(notices, "show", Q_ARG(QVariant, message), Q_ARG(QVariant, 1),
                                  Q_ARG(QVariant, QVariant()));
        QTRY_VERIFY(find("toast"));
        QCOMPARE(find("toast")->property("duration").toInt() / 1000, seconds);
    }

    /// A click without a move writes nothing to the device, although the value is outside the range.
    void aSliderKeepsAValueOutsideItsRange()
    {
        const QQuickItem *beyond = find("beyond");
        const auto number = [](const QQuickItem *slider) {
            return findBelow(const_cast<QQuickItem *>(slider), "sliderNumber", Sight::Visible)
                ->property("text")
                .toString();
        };
        QCOMPARE(number(beyond), "12");
        const QQuickItem *label = findBelow(find("beyond"), "sliderNumber", Sight::Visible);
        const QPointF handle = beyond->mapToScene({label->x() - 12, beyond->height() / 2});
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, handle.toPoint());
        QCOMPARE(done(), "");
        QCOMPARE(number(beyond), "12");
        press(Qt::Key_Left);
        QTRY_COMPARE(done(), "set 9");
        m_window->setProperty("done", "");

        const QQuickItem *single = find("single"); // it has one value only
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, single->mapToScene({100, 10}).toPoint());
        press(Qt::Key_Right);
        QCOMPARE(number(single), "3");
        QCOMPARE(done(), "");
    }

private:
    [[nodiscard]] QStringList findAll(const QString &name) const
    {
        QStringList texts;
        collect(m_window->contentItem(), name, texts);
        return texts;
    }
    static void collect(QQuickItem *item, const QString &name, QStringList &texts)
    {
        if (!item->isVisible())
            return;
        if (item->objectName() == name)
            texts.append(item->property("text").toString());
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collect(child, name, texts);
    }
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
