// The field of a command with what it offers, and the bubble that shows a device's answer.
#include <QClipboard>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(configtoolsPlugin)

namespace {

const char *const scene = "import QtQuick\n"
                          "import QtQuick.Templates as T\n"
                          "import configtools\n"
                          "T.ApplicationWindow {\n"
                          "    width: 1000; height: 400; visible: true\n"
                          "    CgiCommands { id: known; cgiManager: memory }\n"
                          "    CgiCommandField { objectName: 'command'; x: 500; commands: known }\n"
                          "    Item {\n"
                          "        objectName: 'answer'; x: 300; y: 200; width: 100; height: 34\n"
                          "        property string words\n"
                          "        OVToolTip {\n"
                          "            shown: parent.words !== ''; text: parent.words; footnote: 'footnote'\n"
                          "            widest: Theme.answerTipWidth\n"
                          "        }\n"
                          "    }\n"
                          "}\n";

QQuickItem *findBelow(QQuickItem *item, const QString &name)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == name)
        return item;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = findBelow(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

/// Stands for the object that sends commands and remembers them.
class Memory : public QObject
{
    Q_OBJECT
public:
    Q_INVOKABLE [[nodiscard]] static QStringList recentCommands()
    {
        QStringList commands;
        for (int number = 0; number < 20; ++number)
            commands.append(QStringLiteral("/cgi-bin/%1").arg(number));
        return commands;
    }
    Q_INVOKABLE [[nodiscard]] static QStringList favouriteCommands() { return {}; }
};

class TestCommands : public QObject
{
    Q_OBJECT
    Memory m_memory;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    [[nodiscard]] QQuickItem *find(const QString &name) const
    {
        return findBelow(m_window->contentItem(), name);
    }

    [[nodiscard]] QRectF place(const QString &name) const
    {
        const QQuickItem *item = find(name);
        return item ? item->mapRectToScene(item->boundingRect()) : QRectF();
    }

    [[nodiscard]] bool isInWindow(const QString &name) const
    {
        return QRectF(QPointF(), m_window->size()).contains(place(name)) && !place(name).isEmpty();
    }

private Q_SLOTS:
    void initTestCase() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

    void init()
    {
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->addImportPath("qrc:/qt/qml");
        m_engine->rootContext()->setContextProperty("memory", &m_memory);
        QQmlComponent component(m_engine.get());
        component.setData(scene, QUrl("qrc:/test.qml"));
        m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
        QVERIFY2(m_window, qPrintable(component.errorString()));
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_engine.reset();
    }

    /// The field of a row that is scrolled is offered something in one place and then in another.
    void offersStandBesideTheField_data()
    {
        QTest::addColumn<QList<int>>("places");
        QTest::newRow("at the head") << QList<int>{10};
        QTest::newRow("at the foot") << QList<int>{360};
        QTest::newRow("scrolled to the foot") << QList<int>{10, 360};
        QTest::newRow("scrolled to the head") << QList<int>{360, 10};
    }

    void offersStandBesideTheField()
    {
        QFETCH(QList<int>, places);
        for (const int y : places) {
            find("command")->setY(y);
            find("cgiCommandText")->forceActiveFocus();
            QTest::keyClick(m_window.get(), Qt::Key_Slash);
            QTRY_VERIFY(isInWindow("cgiOffer0") && isInWindow("cgiOffer7"));
            const QRectF offers = place("cgiOffer0").united(place("cgiOffer7"));
            QVERIFY(!offers.intersects(place("cgiCommandText")));
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiOffer0"));
            QTest::keyClick(m_window.get(), Qt::Key_Backspace); // offers again, as for any change
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
            QTRY_VERIFY(!find("cgiOffer0"));
        }
    }

    void aLongCommandStaysWhole()
    {
        const QString command = "/cgi-bin/set?" + QString(10'000, 'q');
        QGuiApplication::clipboard()->setText(command);
        find("cgiCommandText")->forceActiveFocus();
        QTest::keyClick(m_window.get(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(find("command")->property("text").toString(), command);
        QVERIFY(!find("cgiStarButton")->isEnabled()); // the memory would not keep it
    }

    void aLongAnswerEndsInTheWindow_data()
    {
        QTest::addColumn<QString>("words");
        QTest::newRow("short") << "OK";
        QTest::newRow("many lines") << QString("line\n").repeated(2'000);
        QTest::newRow("one line") << QString(3'000, 'w');
        QTest::newRow("wide letters") << QString(3'000, u'东');
        QTest::newRow("line breaks of other kinds")
            << QString("a\u2028b\u000Bc\u000Cd\u0085e\rf").repeated(300);
    }

    void aLongAnswerEndsInTheWindow()
    {
        QFETCH(QString, words);
        find("answer")->setProperty("words", words);
        QTRY_VERIFY(isInWindow("toolTip") && isInWindow("toolTipNote"));
        const int shown = find("toolTip")->property("lineCount").toInt();
        QCOMPARE(shown > 1, words.size() > 2);
        QCOMPARE(find("toolTip")->property("truncated").toBool(), words.size() > 2);
        QVERIFY(place("toolTip").bottom() <= place("toolTipNote").top());
    }
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
