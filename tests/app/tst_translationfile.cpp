#include "app/translationfile.h"
#include "tests/files/filecontents.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

/// A file of a language is one that others may have made, copied or cut short.
class TestTranslationFile : public QObject
{
    Q_OBJECT
private:
    QByteArray m_sound;

private Q_SLOTS:
    void initTestCase()
    {
        m_sound = fileContents(TRANSLATION);
        QVERIFY(m_sound.size() > 1000);
    }

    void theProgramsOwnAreSound()
    {
        QVERIFY(isSoundTranslation(m_sound));
        QTranslator translator;
        QVERIFY(loadTranslation(translator, TRANSLATION));
        QVERIFY(!translator.isEmpty());
    }

    void aCutOneIsNot()
    {
        // All of its texts are there when it is cut right before the rules of plurals, which not every
        // language has: such a file is as good as one that never had them.
        constexpr char pluralRules = '\x88';
        for (qsizetype size = 0; size < m_sound.size(); ++size) {
            if (m_sound.at(size) == pluralRules && m_sound.size() - size < 100)
                continue;
            QVERIFY2(!isSoundTranslation(m_sound.left(size)), qPrintable(QString::number(size)));
        }
    }

    void aMissingOrDamagedFileLeavesNoTranslation()
    {
        const QTemporaryDir directory;
        QTranslator translator;
        QVERIFY(!loadTranslation(translator, directory.filePath("none.qm")));
        const QString damaged = directory.filePath("damaged.qm");
        QVERIFY(writeFile(damaged, m_sound.left(m_sound.size() / 2)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is damaged"));
        QVERIFY(!loadTranslation(translator, damaged));
        QVERIFY(translator.isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read"));
        QVERIFY(!loadTranslation(translator, directory.path()));
    }
};

QTEST_GUILESS_MAIN(TestTranslationFile)
#include "tst_translationfile.moc"
