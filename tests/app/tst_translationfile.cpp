#include "app/translationfile.h"
#include "tests/files/filecontents.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

/// Translation files may come from other sources, or be truncated.
class TestTranslationFile : public QObject
{
    Q_OBJECT
private:
    QByteArray m_valid;

private Q_SLOTS:
    void initTestCase()
    {
        m_valid = fileContents(TRANSLATION);
        QVERIFY(m_valid.size() > 1000);
    }

    void theApplicationsFileIsValid()
    {
        QVERIFY(isValidTranslation(m_valid));
        QTranslator translator;
        QVERIFY(loadTranslation(translator, TRANSLATION));
        QVERIFY(!translator.isEmpty());
    }

    void aTruncatedFileIsInvalid()
    {
        // A file that is truncated right before the plural rules is complete: not every language has such
        // rules.
        constexpr char pluralRules = '\x88';
        for (qsizetype size = 0; size < m_valid.size(); ++size) {
            if (m_valid.at(size) == pluralRules && m_valid.size() - size < 100)
                continue;
            QVERIFY2(!isValidTranslation(m_valid.left(size)), qPrintable(QString::number(size)));
        }
    }

    void aMissingOrDamagedFileLeavesNoTranslation()
    {
        const QTemporaryDir directory;
        QTranslator translator;
        QVERIFY(!loadTranslation(translator, directory.filePath("none.qm")));
        const QString damaged = directory.filePath("damaged.qm");
        QVERIFY(writeFile(damaged, m_valid.left(m_valid.size() / 2)));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("is damaged"));
        QVERIFY(!loadTranslation(translator, damaged));
        QVERIFY(translator.isEmpty());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("cannot be read"));
        QVERIFY(!loadTranslation(translator, directory.path()));
    }
};

QTEST_GUILESS_MAIN(TestTranslationFile)
#include "tst_translationfile.moc"
