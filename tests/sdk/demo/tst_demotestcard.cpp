// The test picture of simulated channels, in a program that has fonts.
#include "sdk/demo/internal/testcard.h"

#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace sdk::demo;

class TestCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySizeHoldsItsPieces_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(64, 64), QSize(176, 144), QSize(704, 576), QSize(64, 1080),
                                 QSize(2688, 1520), QSize(3840, 2160), QSize(8192, 64)})
            QTest::addRow("%d*%d", size.width(), size.height()) << size;
    }

    void everySizeHoldsItsPieces()
    {
        QFETCH(QSize, size);
        QList<TestCard::Piece> pieces;
        QList<TestCard::Piece> later;
        QImage still;
        std::jthread([&] { // as it is drawn for streams
            const TestCard card(size, 200, {u"大门 – Gate"_s, u"CH 1 MAIN"_s});
            still = card.still().picture;
            pieces = card.moving(1704067200000);
            later = card.moving(1704067200040);
        })
            .join();
        QCOMPARE(still.size(), size);
        QCOMPARE(pieces.size(), later.size());
        for (qsizetype place = 0; place < pieces.size(); ++place) {
            const QRect area(pieces[place].corner, pieces[place].picture.size());
            QVERIFY(!area.isEmpty() && still.rect().contains(area));
            QVERIFY((area.x() | area.y() | area.width() | area.height()) % 2 == 0);
            QCOMPARE(QRect(later[place].corner, later[place].picture.size()), area);
            if (size.height() >= 144 && size.width() >= 176)
                QVERIFY(later[place].picture != pieces[place].picture);
        }
    }

    void namesAreDrawnInTheirOwnLetters()
    {
        const QSize size(704, 576);
        const auto cardOf = [&size](const QString &name) {
            return TestCard(size, 200, {name, u"CH 1 MAIN"_s}).still().picture;
        };
        QVERIFY(cardOf(u"大门"_s) != cardOf(u"仓库"_s));
        QCOMPARE(cardOf(u"大门"_s), cardOf(u"大门"_s));
    }
};

QTEST_MAIN(TestCardTest)
#include "tst_demotestcard.moc"
