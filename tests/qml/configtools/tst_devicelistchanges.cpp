#include "device/devicefactory.h"
#include "tests/qml/configtools/qmlscene.h"

namespace {

const char *const scene = "    id: window\n"
                          "    property bool shown: true\n"
                          "    property int readings: 0\n"
                          "    DeviceListChanges {\n"
                          "        deviceFactory: factory; shown: window.shown\n"
                          "        onReadingRequested: ++window.readings\n"
                          "    }\n";

} // namespace

class TestDeviceListChanges : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPageReadsOnceForManyChangesAndNotWhileItIsHidden()
    {
        CDeviceFactory factory({});
        QQmlEngine engine;
        const auto window = openScene(engine, scene, {{"factory", &factory}});
        QVERIFY(window);
        const auto readings = [&] {
            QCoreApplication::processEvents();
            return window->property("readings").toInt();
        };
        const auto change = [&] {
            for (int time = 0; time < 3; ++time) {
                Q_EMIT factory.signalAddDeviceToTable();
                Q_EMIT factory.signalAddSingleDeviceToTable();
            }
        };
        QCOMPARE(readings(), 1); // what was there before the page
        change();
        QCOMPARE(readings(), 2);
        window->setProperty("shown", false);
        change();
        QCOMPARE(readings(), 2);
        window->setProperty("shown", true);
        QCOMPARE(readings(), 3);
        window->setProperty("shown", false);
        window->setProperty("shown", true);
        QCOMPARE(readings(), 3);
    }
};

QTEST_MAIN(TestDeviceListChanges)
#include "tst_devicelistchanges.moc"
