// The layout check of the tour finds faults, and reports no others.
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"
#include "tests/tour/driver/layoutcheck.h"

class TestLayoutCheck : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findsFaults_data()
    {
        // The QML, and the first reported fault; "": none.
        const auto row = dataTable<QByteArray, QString>({"content", "fault"});
        const QByteArray text = "text: 'A text that takes some room'";

        row("label next to its field",
            "OVFormRow { width: 300; label: 'Name'; OVTextField { text: 'North gate' } }", "");
        row("label that is elided has a tool tip", "OVLabel { width: 40; " + text + " }", "");
        row("label that is elided has none",
            "OVLabel { objectName: 'poor'; width: 40; showsFullTextOnHover: false; " + text + " }",
            "poor.*is elided");
        row("tool tip around the label",
            "Item { OVLabel { width: 40; showsFullTextOnHover: false; " + text +
                " }\n"
                "OVToolTip { shown: false; " +
                text + " } }",
            "");
        row("tool tip with a longer text in the label",
            "OVLabel { width: 40; showsFullTextOnHover: false; " + text +
                "\n"
                "OVToolTip { shown: false; text: 'And: ' + parent.text } }",
            "");
        row("tool tip with another text",
            "Item { objectName: 'poor'; OVLabel { width: 40; showsFullTextOnHover: false; " + text +
                " }\n"
                "OVToolTip { shown: false; text: 'other' } }",
            "poor.*is elided");
        row("paragraph truncated in its last line",
            "OVParagraph { objectName: 'poor'; width: 60; maximumLineCount: 1; elide: Text.ElideRight; " +
                text + " }",
            "poor.*is elided");

        row("button beyond the edge", "OVButton { x: 380; objectName: 'poor'; text: 'Go on' }",
            "poor.*is truncated");
        row("text beyond the edge", "OVParagraph { x: 380; objectName: 'poor'; " + text + " }",
            "poor.*is truncated");
        row("text truncated by an enclosing item",
            "Item { width: 60; height: 30; clip: true; OVParagraph { objectName: 'poor'; " + text + " } }",
            "poor.*is truncated");
        row("list that is scrolled",
            "ListView { width: 200; height: 50; clip: true; model: 9; delegate: OVButton { text: 'Row' } }",
            "");
        row("list whose rows are too wide",
            "ListView { width: 60; height: 50; clip: true; model: 9\n"
            "delegate: OVButton { objectName: 'poor'; width: 100; text: 'Row' } }",
            "poor.*is truncated");
        row("headings of a table that is scrolled",
            "OVTableHead { width: 200; columns: [{key: 'model', title: 'Model', width: 150},\n"
            "{key: 'mac', title: 'MAC', width: 150}]; columnWidths: [150, 150]; checkable: false\n"
            "checkWidth: 8; checkState: Qt.Unchecked; rowCount: 1; sortKey: ''\n"
            "sortOrder: Qt.AscendingOrder; scrolled: 0 }",
            "");
        row("choice with little room",
            "Item { width: 150; height: 40; clip: true; OVSegmentedChoice { room: parent.width\n"
            "currentIndex: 0; options: [{text: 'All', objectName: 'all'},\n"
            "{text: 'Unresolved 0', objectName: 'failed'},\n"
            "{text: 'Not logged in 19', objectName: 'others'}] } }",
            "");
        row("hidden items",
            "OVButton { x: 380; visible: false; text: 'Go on' }\n"
            "OVButton { x: 390; opacity: 0; text: 'Go on' }",
            "");

        row("buttons side by side",
            "OVButton { id: one; text: 'Go on' }\n"
            "OVButton { x: one.width; text: 'Stop' }",
            "");
        row("overlapping buttons",
            "OVButton { id: one; objectName: 'poor'; text: 'Go on' }\n"
            "OVButton { x: one.width - 4; text: 'Stop' }",
            "poor.*overlaps");
        row("overlapping texts",
            "OVParagraph { objectName: 'poor'; " + text + " }\nOVParagraph { x: 30; text: 'Others' }",
            "poor.*overlaps");
        row("text that runs into a field",
            "OVParagraph { objectName: 'poor'; y: 6; " + text + " }\nOVTextField { x: 60 }",
            "poor.*overlaps");
        row("lines under each other", "Column { OVParagraph { " + text + " }\nOVParagraph { " + text + " } }",
            "");
        row("dialog over the page",
            "OVButton { x: 150; y: 60; text: 'Go on' }\n"
            "OVDialog { visible: true; width: 300; title: 'Question'; OVLabel { " +
                text + " } }",
            "");
        row("overlapping texts of a dialog",
            "OVDialog { visible: true; width: 300; title: 'Question'; OVLabel { objectName: 'poor'; " + text +
                " }\nOVLabel { x: 20; text: 'Others' } }",
            "poor.*overlaps");

        const QByteArray tip = "OVToolTip { shown: true; text: 'What it does' }";
        row("tool tip over a heading",
            "OVTableHead { y: 40; width: 400; columns: [{key: 'mac', title: 'MAC', width: 200}]\n"
            "columnWidths: [200]; checkable: false; checkWidth: 8; checkState: Qt.Unchecked; rowCount: 1\n"
            "sortKey: ''; sortOrder: Qt.AscendingOrder; scrolled: 0 }\n"
            "OVButton { objectName: 'poor'; width: 100; text: 'Go on'; " +
                tip + " }",
            "covers the heading of a table");
        row("tool tip below a heading",
            "OVTableHead { y: 40; width: 400; columns: [{key: 'mac', title: 'MAC', width: 200}]\n"
            "columnWidths: [200]; checkable: false; checkWidth: 8; checkState: Qt.Unchecked; rowCount: 1\n"
            "sortKey: ''; sortOrder: Qt.AscendingOrder; scrolled: 0 }\n"
            "Item { readonly property int tipDrop: 44; width: 100; height: 32\n"
            "OVButton { width: 100; text: 'Go on'; " +
                tip + " } }",
            "");
    }

    void findsFaults()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, fault);
        QQmlEngine engine;
        const auto window = openScene(engine, "width: 420; height: 200; visible: true\n" + content);
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        if (content.contains("shown: true"))
            QTRY_VERIFY(findBelow(window->contentItem(), "toolTip", Sight::Visible) != nullptr);
        const QStringList wanted = fault.split(QStringLiteral(".*")); // the item and the fault
        const auto isReported = [&] {                                 // after opening animations have ended
            const QStringList faults = layoutFaults(*window);
            return faults.isEmpty()
                       ? fault.isEmpty()
                       : !fault.isEmpty() &&
                             std::all_of(wanted.cbegin(), wanted.cend(), [&](const QString &part) {
                                 return faults.constFirst().contains(part);
                             });
        };
        QTRY_VERIFY2_WITH_TIMEOUT(isReported(), qPrintable(layoutFaults(*window).join('\n')), 2000);
    }
};

QTEST_MAIN(TestLayoutCheck)
#include "tst_layoutcheck.moc"
