// Growth in the figures of a process that repeats its work.
#include "tests/datatable.h"
#include "tests/tour/driver/processfigures.h"

#include <QFile>

#include <functional>

using Figures = std::function<ProcessFigures(int round)>;
Q_DECLARE_METATYPE(Figures)

class TestProcessFigures : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void growthIsReported_data()
    {
        const auto row = dataTable<int, Figures, QString>({"rounds", "figures", "growth"});
        const auto noisy = [](int round) {
            // Caches fill in the first rounds; later values vary around 160 MB.
            return ProcessFigures{.megabytes = round == 0 ? 120.0 : 160.0 + (round % 5),
                                  .threads = round == 0 ? 20 : 21,
                                  .descriptors = 50,
                                  .objects = 9000 + 100 * (round % 3)};
        };
        row("steady", 48, noisy, "");
        row("steady, few rounds", 3, noisy, "");
        row(
            "one outlier", 48,
            [noisy](int round) {
                ProcessFigures figures = noisy(round);
                figures.megabytes += round == 30 ? 500 : 0;
                return figures;
            },
            "");
        row(
            "small leak", 48,
            [noisy](int round) {
                ProcessFigures figures = noisy(round);
                figures.megabytes += 0.2 * round;
                return figures;
            },
            "memory: +0.20 MB per round");
        row(
            "large leak, few rounds", 3,
            [](int round) { return ProcessFigures{.megabytes = 100.0 + 30 * round}; },
            "memory: +30.0 MB since round 2");
        row(
            "thread", 3, [](int round) { return ProcessFigures{.threads = round < 2 ? 20 : 21}; },
            "threads: 21 instead of 20");
        row(
            "descriptor", 3, [](int round) { return ProcessFigures{.descriptors = round < 2 ? 50 : 51}; },
            "file descriptors: 51 instead of 50");
        row(
            "objects", 12, [](int round) { return ProcessFigures{.objects = 9000 + 3 * round}; },
            "objects: +3.00 objects per round");
    }

    void growthIsReported()
    {
        QFETCH(int, rounds);
        QFETCH(Figures, figures);
        QList<ProcessFigures> all;
        for (int round = 0; round < rounds; ++round)
            all.append(figures(round));
        QTEST(growthOf(all).join(u'\n'), "growth");
    }

    void figuresAreThoseOfTheProcess()
    {
        const ProcessFigures before = processFigures();
        QVERIFY(before.megabytes > 1 && before.threads >= 1 && before.descriptors >= 3);
        const QByteArray memory(64 * 1024 * 1024, 'x');
        QFile file("/proc/self/status");
        QVERIFY(file.open(QFile::ReadOnly));
        const ProcessFigures after = processFigures();
        QVERIFY2(after.megabytes - before.megabytes > 60, memory.left(1).constData());
        QCOMPARE(after.descriptors, before.descriptors + 1);
    }
};

QTEST_MAIN(TestProcessFigures)
#include "tst_processfigures.moc"
