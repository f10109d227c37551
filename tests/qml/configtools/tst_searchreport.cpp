// The dialog with the report of a search.
#include "device/search/searchreports.h"
#include "sdk/blocktext.h"
#include "sdk/searchreportblocks.h"
#include "tests/media/quietnetlibrary.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

/// Reports many interfaces without responses.
class SilentNetwork : public QuietNetLibrary
{
public:
    bool NetGetSearchReport(sdk::SearchReport &report) override
    {
        report = {};
        report.size = sizeof(report);
        for (; report.count < 12; ++report.count) {
            sdk::SearchInterfaceReport &entry = report.interfaces[report.count];
            sdk::setBlockText(entry.name, "eth" + std::to_string(report.count));
            sdk::setBlockText(entry.address, "192.0.2." + std::to_string(report.count));
            entry.prefixLength = 24;
            entry.requestsSent = 4;
            entry.obstacles = 1U << static_cast<unsigned>(sdk::SearchObstacle::NoResponse);
        }
        return true;
    }
};

} // namespace

class TestSearchReport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theCompleteReportIsReachable()
    {
        QTest::failOnWarning(QRegularExpression(".*"));
        SearchReports reports(std::make_shared<SilentNetwork>());
        QQmlEngine engine;
        const auto window =
            openScene(engine,
                      "    width: 1280; height: 720; visible: true\n"
                      "    SearchReportDialog { objectName: 'dialog'; reports: searchReports }\n",
                      {{"searchReports", &reports}});
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        reports.begin(true, {});
        reports.end(0, false);
        auto *dialog = window->findChild<QObject *>("dialog");
        QVERIFY(QMetaObject::invokeMethod(dialog, "open"));
        QTRY_VERIFY(dialog->property("opened").toBool());
        auto *content = dialog->property("contentItem").value<QQuickItem *>();
        QVERIFY(findBelow(content, "reportBlock11", Sight::Any));
        QVERIFY(dialog->property("height").toReal() < window->height());
        // The keyboard scrolls to the hidden part.
        const QQuickItem *last = findBelow(content, "reportBlock11", Sight::Any);
        const qreal before = last->mapToScene({}).y();
        QTest::keyClick(window.get(), Qt::Key_Down);
        QTRY_VERIFY(last->mapToScene({}).y() < before);

        QTest::keyClick(window.get(), Qt::Key_Return);
        QVERIFY(findBelow(content, "dialogNotice", Sight::Visible));
        QCOMPARE(QGuiApplication::clipboard()->text(), reports.text());
    }
};

QTEST_MAIN(TestSearchReport)
#include "tst_searchreport.moc"
