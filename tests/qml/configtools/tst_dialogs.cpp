// Dialogs: their contents, and confirmation with mouse and keyboard.
#include "device/models/certificatelist.h"
#include "sdk/blocktext.h"
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <QAbstractListModel>
#include <QSignalSpy>
#include <QTemporaryDir>
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
                          "            signal importRefused(string reason, bool mayAskAgain)\n"
                          "        }\n"
                          "        deviceFactory: QtObject {\n"
                          "            property var faults: []\n"
                          "            function exportFaults(family) { return faults; }\n"
                          "        }\n"
                          "    }\n"
                          "    SearchSettingsDialog { objectName: 'settings' }\n"
                          "    CertificateDialog { certificates: shownCertificates }\n"
                          "    AboutDialog { productName: 'Tool'; version: 'V1' }\n"
                          "    OVTable {\n"
                          "        y: 100; width: 400; height: 300; objectName: 'table'; model: devices\n"
                          "        columns: [{key: 'mac', title: 'MAC', width: 200}]\n"
                          "    }\n";

sdk::CertificateVerdict show(CertificateStore &store, const char *address, char digit)
{
    sdk::DeviceCertificate certificate{};
    certificate.port = 443;
    sdk::setBlockText(certificate.address, address);
    std::string fingerprint;
    for (int index = 0; index < 32; ++index)
        fingerprint += std::string(index > 0 ? ":" : "") + digit + digit;
    sdk::setBlockText(certificate.fingerprint, fingerprint);
    return store.verdictOn(certificate);
}

} // namespace

/// Rows that can be reordered.
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
        m_window =
            openScene(m_engine, scene, {{"devices", &m_devices}, {"shownCertificates", &m_certificates}});
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_box = m_window->findChild<QObject *>("question");
    }

    void aClickSelectsTheRowThatWasPressed()
    {
        auto *table = m_window->findChild<QQuickItem *>("table");
        const QQuickItem *row = findBelow(table, "row0", Sight::Visible);
        QVERIFY(row);
        const QPoint position = row->mapToScene({100, row->height() / 2}).toPoint();
        QTest::mousePress(m_window.get(), Qt::LeftButton, {}, position);
        m_devices.reverse();
        QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, position);
        QCOMPARE(table->property("currentIndex").toInt(), 2);
    }

    void enterConfirms_data()
    {
        // kind: OVMessageBox's
        const auto row = dataTable<int, bool>({"kind", "isYes"});
        row("a question: yes", 2, true);
        row("a dangerous question: no", 3, false);
    }

    void enterConfirms()
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

    /// The last focused button does not have the focus when the dialog opens again.
    void aReopenedDialogHasItsDefaultButton()
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

    void anExportReportsNamesThatCannotBeImported()
    {
        QObject *files = m_window->findChild<QObject *>("files");
        const QSignalSpy notices(files, SIGNAL(notify(QString, int)));
        const auto report = [files] {
            return QMetaObject::invokeMethod(files, "reportExport", Q_ARG(QVariant, "exported"));
        };
        QVERIFY(report());
        QCOMPARE(notices.count(), 1);
        const QVariantMap fault = {
            {"address", "10.0.0.1:1"}, {"name", "A,B"}, {"column", "Name"}, {"reason", ", (U+002C)"}};
        files->property("deviceFactory").value<QObject *>()->setProperty("faults", QVariantList{fault});
        QVERIFY(report());
        QCOMPARE(notices.count(), 1);
        QObject *table = m_window->findChild<QObject *>("reportTable");
        QVERIFY(table);
        QCOMPARE(table->property("count").toInt(), 1);
        QTest::keyClick(m_window.get(), Qt::Key_Return);
    }

    /// The licences of the typefaces require that users can read them in the application.
    void theSearchSettingsForgetThePassword()
    {
        auto *dialog = m_window->findChild<QObject *>("settings");
        QVERIFY(QMetaObject::invokeMethod(dialog, "load",
                                          Q_ARG(QVariant, QVariantMap({{"localDomain", true},
                                                                       {"otherDomain", false},
                                                                       {"logsIn", false},
                                                                       {"password", "secret7"},
                                                                       {"startIP", ""},
                                                                       {"endIP", ""},
                                                                       {"userName", "admin"}}))));
        QMetaObject::invokeMethod(dialog, "open");
        QTRY_VERIFY(dialog->property("opened").toBool());
        auto *field = dialog->property("contentItem").value<QQuickItem *>();
        const auto text = [field] {
            return findBelow(field, "passwordField", Sight::Any)->property("text").toString();
        };
        QCOMPARE(text(), "secret7");
        QMetaObject::invokeMethod(dialog, "reject");
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QCOMPARE(text(), "");
    }

    void theAboutBoxShowsLicences()
    {
        auto *dialog = m_window->findChild<QObject *>("aboutDialog");
        QMetaObject::invokeMethod(dialog, "open");
        QTRY_VERIFY(dialog->property("opened").toBool());
        auto *lines = m_window->findChild<QQuickItem *>("licenceLines");
        QVERIFY(lines && !lines->isVisible());
        QMetaObject::invokeMethod(m_window->findChild<QObject *>("licencesButton"), "clicked");
        QTRY_VERIFY(lines->isVisible());
        const QString text = lines->property("model").toStringList().join(u'\n');
        for (const char *part :
             {"x264", "SIL Open Font License", "THE FONT SOFTWARE IS PROVIDED", "Lucide Icons"})
            QVERIFY2(text.contains(QLatin1String(part), Qt::CaseInsensitive), part);
        QTest::keyClick(m_window.get(), Qt::Key_End);
        QTRY_VERIFY(lines->property("atYEnd").toBool());
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QTRY_VERIFY(!dialog->property("visible").toBool());
    }

    /// Accepting new certificates does not accept a changed one.
    void certificatesAreAccepted()
    {
        (void)::show(*m_store, "10.0.0.5", 'A');
        QCOMPARE(m_store->agree(m_store->refused()), "");
        (void)::show(*m_store, "10.0.0.6", 'B');
        (void)::show(*m_store, "10.0.0.5", 'C');
        auto *dialog = m_window->findChild<QObject *>("certificateDialog");
        const QSignalSpy agreed(dialog, SIGNAL(agreed(int)));
        const auto open = [dialog] {
            QMetaObject::invokeMethod(dialog, "show");
            QTRY_VERIFY(dialog->property("opened").toBool());
        };
        const auto text = [this](const char *name) {
            const QQuickItem *item = findBelow(m_window->contentItem(), name, Sight::Visible);
            return item ? item->property("text").toString().left(2) : QString();
        };
        open();
        QCOMPARE(text("shownFingerprint"), "CC");
        QCOMPARE(text("storedFingerprint"), "AA");
        QVERIFY(!text("changedNotice").isEmpty());
        QTest::keyClick(m_window.get(), Qt::Key_Return); // the default answer to a warning is no
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QCOMPARE(m_store->refused().size(), 2);

        open();
        const int fresh = m_certificates.get(0).value("changed").toBool() ? 1 : 0;
        QVERIFY(m_certificates.get(fresh).value("checked").toBool());
        for (const int ticked : {0, 1}) { // a click changes the tick of one row
            const QQuickItem *box =
                findBelow(findBelow(m_window->contentItem(), "certificateTable", Sight::Visible),
                          QStringLiteral("check%1").arg(fresh), Sight::Visible);
            QVERIFY(box);
            const QPointF middle = box->mapToScene(QPointF(box->width() / 2, box->height() / 2));
            QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
            QCOMPARE(m_certificates.checkedCount(), ticked);
        }
        QMetaObject::invokeMethod(dialog, "accept");
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QCOMPARE(agreed.count(), 1);
        QVERIFY(::show(*m_store, "10.0.0.6", 'B') == sdk::CertificateVerdict::Trusted);
        QVERIFY(::show(*m_store, "10.0.0.5", 'C') == sdk::CertificateVerdict::Changed);
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

    QTemporaryDir m_folder;
    std::shared_ptr<CertificateStore> m_store =
        std::make_shared<CertificateStore>(m_folder.filePath("certificates.json"));
    CertificateList m_certificates{m_store}; // must outlive the engine, as the members below
    Devices m_devices;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    QObject *m_box = nullptr;
};

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
