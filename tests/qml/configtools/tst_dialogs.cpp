// Boxes over the window: how they are answered, and what they show.
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QAbstractListModel>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace {

const char *const scene = "    width: 1280; height: 720; visible: true\n"
                          "    OVMessageBox { objectName: 'question' }\n"
                          "    ModifyIPFiles {\n"
                          "        objectName: 'files'\n"
                          "        batches: null; busyState: null; deviceTable: null; fileDialogs: null\n"
                          "        shown: true\n"
                          "        addingBatches: QtObject {\n"
                          "            property bool reading: false\n"
                          "            signal importBegan(var batch)\n"
                          "            signal importRefused(string reason)\n"
                          "        }\n"
                          "        deviceFactory: QtObject {\n"
                          "            property var faults: []\n"
                          "            function exportFaults(family) { return faults; }\n"
                          "        }\n"
                          "    }\n"
                          "    OVTable {\n"
                          "        y: 100; width: 400; height: 300; objectName: 'table'; model: devices\n"
                          "        columns: [{key: 'mac', title: 'MAC', width: 200}]\n"
                          "    }\n";

} // namespace

/// Rows that change their places without new ones.
class Devices : public QAbstractListModel
{
    Q_OBJECT
public:
    int rowCount(const QModelIndex & = {}) const override { return static_cast<int>(m_macs.size()); }
    QHash<int, QByteArray> roleNames() const override
    {
        return {{0, "checked"}, {1, "conflict"}, {2, "identity"}};
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        return role == 2 ? QVariant(m_macs.at(index.row())) : QVariant(false);
    }
    Q_INVOKABLE QVariantMap get(int row) const { return {{"mac", m_macs.value(row)}}; }
    Q_INVOKABLE int rowOf(const QString &identity) const
    {
        return static_cast<int>(m_macs.indexOf(identity));
    }
    void reverse()
    {
        std::reverse(m_macs.begin(), m_macs.end());
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }

private:
    QStringList m_macs = {"a", "b", "c"};
};

class TestDialogs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        m_window = openScene(m_engine, scene, {{"devices", &m_devices}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_box = m_window->findChild<QObject *>("question");
    }

    void aClickIsMeantForTheRowThatWasPressed()
    {
        auto *table = m_window->findChild<QQuickItem *>("table");
        const QQuickItem *row = findBelow(table, "row0", Sight::Visible);
        QVERIFY(row);
        const QPoint place = row->mapToScene({100, row->height() / 2}).toPoint();
        QTest::mousePress(m_window.get(), Qt::LeftButton, {}, place);
        m_devices.reverse();
        QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, place);
        QCOMPARE(table->property("currentIndex").toInt(), 2);
    }

    void enterAnswers_data()
    {
        // kind: OVMessageBox's
        const auto row = dataTable<int, bool>({"kind", "isYes"});
        row("a question: yes", 2, true);
        row("a dangerous question: no", 3, false);
    }

    void enterAnswers()
    {
        QFETCH(const int, kind);
        QFETCH(const bool, isYes);
        const QSignalSpy accepted(m_box, SIGNAL(accepted()));
        const QSignalSpy rejected(m_box, SIGNAL(rejected()));
        show(kind);
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_VERIFY(!m_box->property("visible").toBool());
        QCOMPARE(accepted.count(), isYes ? 1 : 0);
        QCOMPARE(rejected.count(), isYes ? 0 : 1);
    }

    /// The button that had the focus when a box went does not have it when the box comes back.
    void aBoxThatComesBackIsAnsweredAnew()
    {
        show(2);
        const QString cancel = QStringLiteral("cancelButton");
        for (int i = 0; i < 5 && focused() != cancel; ++i)
            QTest::keyClick(m_window.get(), Qt::Key_Tab);
        QCOMPARE(focused(), cancel);
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QTRY_VERIFY(!m_box->property("visible").toBool());
        const QSignalSpy accepted(m_box, SIGNAL(accepted()));
        show(2);
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QTRY_COMPARE(accepted.count(), 1);
        QTRY_VERIFY(!m_box->property("visible").toBool());
    }

    void anExportShowsWhatDoesNotComeBack()
    {
        QObject *files = m_window->findChild<QObject *>("files");
        const QSignalSpy said(files, SIGNAL(said(QString, int)));
        const auto report = [files] {
            return QMetaObject::invokeMethod(files, "reportExport", Q_ARG(QVariant, "exported"));
        };
        QVERIFY(report());
        QCOMPARE(said.count(), 1);
        const QVariantMap fault = {
            {"address", "10.0.0.1:1"}, {"name", "A,B"}, {"column", "Name"}, {"reason", ", (U+002C)"}};
        files->property("deviceFactory").value<QObject *>()->setProperty("faults", QVariantList{fault});
        QVERIFY(report());
        QCOMPARE(said.count(), 1);
        QObject *table = m_window->findChild<QObject *>("reportTable");
        QVERIFY(table);
        QCOMPARE(table->property("count").toInt(), 1);
        QTest::keyClick(m_window.get(), Qt::Key_Return);
    }

private:
    void show(int kind)
    {
        QMetaObject::invokeMethod(m_box, "show", Q_ARG(QVariant, "?"), Q_ARG(QVariant, kind));
        QTRY_VERIFY(m_box->property("opened").toBool());
    }

    [[nodiscard]] QString focused() const
    {
        return m_window->activeFocusItem() ? m_window->activeFocusItem()->objectName() : QString();
    }

    Devices m_devices; // outlives the engine
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_box = nullptr;
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
