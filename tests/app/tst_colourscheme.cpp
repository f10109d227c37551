#include "app/colourscheme.h"
#include "app/desktopscheme.h"
#include "app/localconfig.h"
#include "app/messagebox.h"
#include "tests/files/filesizelimit.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QFile>
#include <QPalette>
#include <QProcess>
#include <QPushButton>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr uint noPreference = 0;
constexpr uint dark = 1;
constexpr uint light = 2;

QPalette paletteOf(const QColor &window, const QColor &text)
{
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

/// A private session bus.
class SessionBus
{
public:
    SessionBus()
    {
        m_daemon.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForReadyRead())
            m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;
    ~SessionBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] const QString &address() const { return m_address; }

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace

/// A fake of the desktop portal's settings interface.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    uint scheme = noPreference;

    bool begin(QDBusConnection bus)
    {
        return bus.registerObject("/org/freedesktop/portal/desktop", this,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
               bus.registerService("org.freedesktop.portal.Desktop");
    }

    void change(uint to)
    {
        scheme = to;
        Q_EMIT SettingChanged("org.freedesktop.appearance", "color-scheme", QDBusVariant(to));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString &group, const QString &key)
    {
        const bool isKnown = group == "org.freedesktop.appearance" && key == "color-scheme";
        return QDBusVariant(isKnown ? QVariant::fromValue(QDBusVariant(scheme)) : QVariant());
    }

Q_SIGNALS:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
};

class TestColourScheme : public QObject
{
    Q_OBJECT
private:
    const QPalette m_lightPalette = paletteOf(Qt::white, Qt::black);
    const QPalette m_darkPalette = paletteOf(Qt::black, Qt::white);
    std::unique_ptr<QTemporaryDir> m_directory;

    /// A colour of the theme in QML.
    static QColor colourOfTheme(bool isDark, const QByteArray &name)
    {
        QQmlEngine engine;
        engine.addImportPath("qrc:/qt/qml");
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport configtools\nQtObject { property color wanted: Theme." +
                              QByteArray(isDark ? "dark" : "light") + "Colours." + name + " }",
                          QUrl("qrc:/test.qml"));
        const std::unique_ptr<QObject> object(component.create());
        return object ? object->property("wanted").value<QColor>() : QColor();
    }

private Q_SLOTS:
    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QApplication::setPalette(m_lightPalette);
    }

    void followsThePortalOfTheDesktop()
    {
        const SessionBus bus;
        QVERIFY(!bus.address().isEmpty());
        {
            QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), "fake portal");
            Portal portal;
            portal.scheme = dark;
            QVERIFY(portal.begin(connection));

            DesktopScheme desktop(bus.address());
            QSignalSpy changes(&desktop, &DesktopScheme::darkChanged);
            QTRY_VERIFY(desktop.isDark());
            portal.change(light);
            QTRY_VERIFY(!desktop.isDark());

            // The portal takes precedence over the palette. Changes of other settings are ignored.
            QApplication::setPalette(m_darkPalette);
            Q_EMIT portal.SettingChanged("org.freedesktop.appearance", "contrast", QDBusVariant(dark));
            Q_EMIT portal.SettingChanged("org.gnome.desktop.interface", "color-scheme", QDBusVariant(dark));
            portal.change(noPreference);
            QTRY_VERIFY(desktop.isDark()); // from the palette
            QCOMPARE(changes.count(), 3);
        }
        QDBusConnection::disconnectFromBus("fake portal");
    }

    void followsThePaletteWithoutAPortal()
    {
        const SessionBus bus; // without a portal
        for (const QString &address : {QString(), bus.address(), QStringLiteral("unix:path=/nowhere")}) {
            QApplication::setPalette(m_lightPalette);
            const DesktopScheme desktop(address);
            QVERIFY(!desktop.isDark());
            QApplication::setPalette(m_darkPalette);
            QVERIFY(desktop.isDark());
        }
    }

    void theUsersChoiceOverridesTheDesktopAndIsStored()
    {
        CLocalConfig config(m_directory->path());
        DesktopScheme desktop({});
        ColourScheme scheme(desktop, config);
        QSignalSpy changes(&scheme, &ColourScheme::darkChanged);
        QCOMPARE(scheme.choice(), "desktop");
        QApplication::setPalette(m_darkPalette);
        QVERIFY(scheme.isDark());

        QVERIFY(scheme.choose("light"));
        QVERIFY(!scheme.isDark());
        QCOMPARE(ColourScheme(desktop, config).isDark(), false); // after a restart
        QVERIFY(scheme.choose("dark"));
        QApplication::setPalette(m_lightPalette);
        QVERIFY(scheme.isDark());
        QCOMPARE(ColourScheme(desktop, config).isDark(), true);
        QVERIFY(scheme.choose("desktop"));
        QVERIFY(!scheme.isDark());
        QCOMPARE(changes.count(), 4);

        config.setColourScheme("something else");
        QCOMPARE(ColourScheme(desktop, config).choice(), "desktop");
    }

    void aChoiceThatCannotBeStoredAppliesUntilTheEnd()
    {
        CLocalConfig config(m_directory->path());
        DesktopScheme desktop({});
        ColourScheme scheme(desktop, config);
        {
            const FileSizeLimit limit(QFile(m_directory->path() + "/LocalConfig.ini").size() + 5);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("."));
            QVERIFY(!scheme.choose("dark"));
        }
        QVERIFY(scheme.isDark());
        QCOMPARE(config.colourScheme(), "desktop");
    }

    void messageBoxesHaveTheColoursOfTheTheme()
    {
        CLocalConfig config(m_directory->path());
        DesktopScheme desktop({});
        ColourScheme scheme(desktop, config);
        OMessageBox box("title", "text");
        box.QWidget::show();
        for (const bool isDark : {false, true, false}) {
            scheme.choose(isDark ? "dark" : "light"); // while the box is open
            const QImage image = box.grab().toImage();
            QCOMPARE(image.pixelColor(10, 10), colourOfTheme(isDark, "surface"));
            QCOMPARE(image.pixelColor(0, image.height() / 2), colourOfTheme(isDark, "line"));
            const QWidget *button = box.findChild<QPushButton *>();
            QCOMPARE(image.pixelColor(button->geometry().center() - QPoint(button->width() / 2 - 8, 0)),
                     colourOfTheme(isDark, "accent"));
        }
    }
};

QTEST_MAIN(TestColourScheme)
#include "tst_colourscheme.moc"
