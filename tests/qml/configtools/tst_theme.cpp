// The colours of the light and dark theme, and the base line of texts.
#include "tests/datatable.h"
#include "tests/qml/configtools/qmlscene.h"

#include <algorithm>
#include <cmath>

namespace {

qreal linear(qreal part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

qreal contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/// The lowest row of dark pixels in a part of the image; -1 if there is none.
int lowestSign(const QImage &image, const QRect &part)
{
    constexpr int dark = 120;
    for (int y = part.bottom(); y >= part.top(); --y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (image.pixelColor(x, y).lightness() < dark)
                return y;
        }
    }
    return -1;
}

/// `veil` over `ground`.
QColor blended(const QColor &ground, const QColor &veil)
{
    const auto mix = [&](float under, float over) {
        return under + (over - under) * veil.alphaF();
    };
    return QColor::fromRgbF(mix(ground.redF(), veil.redF()), mix(ground.greenF(), veil.greenF()),
                            mix(ground.blueF(), veil.blueF()));
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT
private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;

    QColor colour(bool isDark, const QByteArray &name) const
    {
        const QObject *colours =
            m_window->property(isDark ? "darkColours" : "lightColours").value<QObject *>();
        return colours->property(name.constData()).value<QColor>();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_window = openScene(m_engine, "width: 200; height: 100; visible: true\n"
                                       "property QtObject theme: Theme\n"
                                       "property QtObject darkColours: Theme.darkColours\n"
                                       "property QtObject lightColours: Theme.lightColours\n"
                                       "color: Theme.colours.background\n"
                                       "OVButton { x: 20; y: 20; width: 100 }\n");
        QVERIFY(m_window);
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    }

    void textHasEnoughContrast_data()
    {
        const auto row =
            dataTable<bool, QByteArray, QByteArray, QByteArray>({"isDark", "texts", "grounds", "veil"});
        const QByteArray panes = "surface background head foot hover pressed row rowAlternate rowConflict "
                                 "rowSelected accentSoft accentSofter";
        // What is fixed of the light theme has less contrast for some items: hints, and the signs of states.
        row("light", false, "text sub accent bad", "surface background foot row", "clear");
        row("dark", true, "text sub faint accent accentHover accentPressed ok warn warnText bad badHover",
            panes, "clear");
        row("dark, under the pointer", true, "text sub faint accent accentHover ok warn bad",
            "row rowAlternate rowConflict", "rowHoverVeil");
        row("dark, warnings", true, "text warnText", "warnSoft", "clear");
        row("dark, errors", true, "text bad", "badSoft", "clear");
        for (const bool isDark : {false, true}) {
            const QByteArray theme = isDark ? "dark" : "light";
            row(theme + ", filled buttons", isDark, "accentText",
                "accent accentHover accentPressed bad badHover badPressed", "clear");
            row(theme + ", bars", isDark, "barText barSub", "bar barHover barPressed", "clear");
            row(theme + ", close button", isDark, "barText", "barClose barClosePressed", "clear");
            row(theme + ", bubbles", isDark, "bubbleText", "bubble", "clear");
        }
    }

    void textHasEnoughContrast()
    {
        QFETCH(bool, isDark);
        QFETCH(QByteArray, texts);
        QFETCH(QByteArray, grounds);
        QFETCH(QByteArray, veil);
        constexpr qreal least = 4.5;
        const QList<QByteArray> names = texts.split(' ');
        for (const QByteArray &name : names) {
            const QList<QByteArray> groundNames = grounds.split(' ');
            for (const QByteArray &groundName : groundNames) {
                const QColor ground = blended(colour(isDark, groundName), colour(isDark, veil));
                const qreal found = contrast(colour(isDark, name), ground);
                QVERIFY2(found >= least,
                         (name + " on " + groundName + " has a contrast of " + QByteArray::number(found))
                             .constData());
            }
        }
    }

    void rowsHaveDifferentColours()
    {
        // Every kind of row, and a row under the pointer.
        for (const bool isDark : {false, true}) {
            QList<QColor> rows;
            for (const char *name : {"row", "rowAlternate", "rowConflict"}) {
                rows.append(colour(isDark, name));
                rows.append(blended(colour(isDark, name), colour(isDark, "rowHoverVeil")));
            }
            rows.append(colour(isDark, "rowSelected"));
            for (qsizetype one = 0; one < rows.size(); ++one) {
                for (qsizetype other = 0; other < one; ++other)
                    QVERIFY2(rows.at(one).rgb() != rows.at(other).rgb(), qPrintable(rows.at(one).name()));
            }
        }
    }

    void textsHaveTheSameBaseLine_data()
    {
        const auto row = namedTable<QString>({"text"});
        row("大门");
        row("Hall");
        row("12");
    }

    void textsHaveTheSameBaseLine()
    {
        QFETCH(QString, text);
        QQmlEngine engine;
        const QByteArray same = "height: 32; width: 80; text: '" + text.toUtf8() + "' }\n";
        const auto window = openScene(engine, "width: 200; height: 32; visible: true\n"
                                              "OVLabel { " +
                                                  same + "OVTextField { x: 100; " + same);
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        const QImage image = window->grabWindow();
        // The areas of the label, and of the field without its frame.
        const int line = lowestSign(image, {0, 4, 80, 24});
        QVERIFY(line > 0);
        QCOMPARE(lowestSign(image, {106, 4, 68, 24}), line);
    }

    void theWindowChangesImmediately()
    {
        QObject *theme = m_window->property("theme").value<QObject *>();
        for (const bool isDark : {false, true, false}) {
            theme->setProperty("dark", isDark);
            const auto isPainted = [&] {
                const QImage image = m_window->grabWindow();
                return image.pixelColor(4, 4) == colour(isDark, "background") &&
                       image.pixelColor(30, 36) == colour(isDark, "surface"); // the colour of the button
            };
            QTRY_VERIFY(isPainted());
        }
    }
};

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
