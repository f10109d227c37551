// The Markdown texts of the manuals: they quote the window, both languages have the same content, and the PDF
// has their images.
#include "tests/datatable.h"
#include "tests/files/filecontents.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString sourceFolder = QStringLiteral(SOURCES);

QString markdownOf(const QString &name)
{
    return QString::fromUtf8(fileContents(sourceFolder + u"/documents/"_s + name + u".md"_s));
}

/// The texts of the window in a language, on one line and with "N" in the place of numbers and names.
QSet<QString> windowTexts(const QString &language)
{
    static const QRegularExpression placeholder(u"%L?[n0-9]"_s);
    QFile file(sourceFolder + u"/translations/"_s + language + u".ts"_s);
    QSet<QString> texts;
    const auto add = [&texts](QString text) {
        texts.insert(text.replace(placeholder, u"N"_s).replace(u'\n', u' ').trimmed());
    };
    if (!file.open(QFile::ReadOnly))
        return texts;
    QXmlStreamReader reader(&file);
    QString text;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        const bool isText = reader.name() == u"translation" || reader.name() == u"numerusform";
        if (token == QXmlStreamReader::Characters)
            text.append(reader.text());
        else if (token == QXmlStreamReader::StartElement && isText)
            text.clear();
        else if (token == QXmlStreamReader::EndElement && isText)
            add(text);
    }
    return texts;
}

/// The kinds of lines of a document: headings with their level, steps with their number, points, notes, code,
/// rows of tables, images with their name. A paragraph is "text".
QStringList structureOf(const QString &markdown)
{
    static const QRegularExpression start(u"^(#+|\\d+\\.|-|>|```|\\||!\\[[^\\]]*\\]\\([^)]*\\))"_s);
    static const QRegularExpression caption(u"\\[.*\\]"_s);
    QStringList kinds;
    for (const QString &line : markdown.split(u'\n')) {
        if (line.isEmpty())
            continue;
        const QString kind = start.match(line).captured(1);
        kinds.append(kind.isEmpty() ? u"text"_s : QString(kind).remove(caption));
    }
    return kinds;
}

QStringList imagesOf(const QString &markdown)
{
    static const QRegularExpression image(u"^!\\[[^\\]]+\\]\\((.+)\\.png\\)$"_s,
                                          QRegularExpression::MultilineOption);
    QStringList names;
    for (auto match = image.globalMatch(markdown); match.hasNext();)
        names.append(match.next().captured(1));
    return names;
}

/// Runs a program. Returns its standard output; a null array if it fails.
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isDone =
        process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return isDone ? process.readAllStandardOutput() + ' ' : QByteArray();
}

bool writePdf(const QString &name, const QString &pdf, const QStringList &imageFolder = {})
{
    return !outputOf(QStringLiteral(DOCUMENT_WRITER),
                     QStringList{sourceFolder + u"/documents/"_s + name + u".md"_s, pdf} + imageFolder)
                .isNull();
}

/// The images of a PDF file, without their masks.
qsizetype imagesInPdf(const QString &pdf)
{
    return outputOf(u"pdfimages"_s, {u"-list"_s, pdf}).count(" image ");
}

} // namespace

class ManualsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void quotesWindow_data()
    {
        const auto row = namedTable<QString, QString>({"document", "language"});
        for (const char *document : {"manual", "QA"}) {
            for (const char *language : {"en_US", "zh_CN"})
                row(QString::fromLatin1(document), QString::fromLatin1(language));
        }
    }

    // Texts in bold type are those of the window.
    void quotesWindow()
    {
        QFETCH(const QString, document);
        QFETCH(const QString, language);
        const QSet<QString> texts = windowTexts(language);
        static const QRegularExpression bold(u"\\*\\*(.+?)\\*\\*"_s);
        QStringList wrong;
        int quotes = 0;
        const QString markdown = markdownOf(document + u'_' + language);
        for (auto match = bold.globalMatch(markdown); match.hasNext(); ++quotes) {
            const QString text = match.next().captured(1);
            if (!texts.contains(text))
                wrong.append(text);
        }
        QCOMPARE(wrong, QStringList());
        QVERIFY(quotes > 50);
    }

    void pdfIsComplete_data() { quotesWindow_data(); }

    // Every section is in the PDF.
    void pdfIsComplete()
    {
        QFETCH(const QString, document);
        QFETCH(const QString, language);
        static const QRegularExpression space(u"\\s+"_s);
        static const QRegularExpression heading(u"^#+ (.+)$"_s, QRegularExpression::MultilineOption);
        const QTemporaryDir folder;
        const QString name = document + u'_' + language;
        const QString pdf = folder.filePath(u"document.pdf"_s);
        QVERIFY(writePdf(name, pdf));
        const QString text = QString::fromUtf8(outputOf(u"pdftotext"_s, {pdf, u"-"_s})).remove(space);
        QStringList missing;
        const QString markdown = markdownOf(name);
        for (auto match = heading.globalMatch(markdown); match.hasNext();) {
            const QString title = match.next().captured(1);
            if (!text.contains(QString(title).remove(space)))
                missing.append(title);
        }
        QCOMPARE(missing, QStringList());
    }

    void languagesCorrespond_data()
    {
        const auto row = namedTable<QString>({"document"});
        row(u"manual"_s);
        row(u"QA"_s);
    }

    void languagesCorrespond()
    {
        QFETCH(const QString, document);
        const QStringList english = structureOf(markdownOf(document + u"_en_US"_s));
        QVERIFY(english.size() > 50);
        QCOMPARE(structureOf(markdownOf(document + u"_zh_CN"_s)), english);
    }

    // Only a table with a paragraph before it is kept on one page.
    void tablesAreIntroduced()
    {
        static const QRegularExpression table(u"^(!\\[|>|\\|).*\\n\\n\\|"_s,
                                              QRegularExpression::MultilineOption);
        QCOMPARE(table.match(markdownOf(u"manual_en_US"_s)).captured(), QString());
    }

    // The tour saves the images of the list.
    void imagesAreTaken()
    {
        QStringList taken =
            QString::fromUtf8(fileContents(sourceFolder + u"/documents/images.txt"_s)).split(u'\n');
        taken.removeAll(QString());
        QStringList named = imagesOf(markdownOf(u"manual_en_US"_s));
        taken.sort();
        named.sort();
        QCOMPARE(named, taken);
    }

    void pdfHasImages()
    {
        const QTemporaryDir folder;
        const QStringList names = imagesOf(markdownOf(u"manual_en_US"_s));
        QImage image(1280, 720, QImage::Format_RGB32);
        image.fill(Qt::gray);
        for (const QString &name : names) {
            QVERIFY(image.save(folder.filePath(name + u".png"_s)));
        }
        const QString pdf = folder.filePath(u"manual.pdf"_s);
        QVERIFY(writePdf(u"manual_en_US"_s, pdf, {folder.path()}));
        QCOMPARE(imagesInPdf(pdf), names.size());
        const QByteArray caption = "The device list after a search";
        QVERIFY(outputOf(u"pdftotext"_s, {pdf, u"-"_s}).contains(caption));

        QVERIFY(writePdf(u"manual_en_US"_s, pdf));
        QCOMPARE(imagesInPdf(pdf), 0);
        QVERIFY(!outputOf(u"pdftotext"_s, {pdf, u"-"_s}).contains(caption));

        QVERIFY(QFile::remove(folder.filePath(names.first() + u".png"_s)));
        QVERIFY(!writePdf(u"manual_en_US"_s, folder.filePath(u"incomplete.pdf"_s), {folder.path()}));
        QVERIFY(!QFile::exists(folder.filePath(u"incomplete.pdf"_s)));
    }

    // The pages of the table of contents are those of the sections.
    void contentsNamePages()
    {
        const QTemporaryDir folder;
        const QString pdf = folder.filePath(u"manual.pdf"_s);
        QVERIFY(writePdf(u"manual_en_US"_s, pdf));
        const auto textOf = [&pdf](int page) {
            return QString::fromUtf8(outputOf(u"pdftotext"_s, {u"-layout"_s, u"-f"_s, QString::number(page),
                                                               u"-l"_s, QString::number(page), pdf, u"-"_s}));
        };
        static const QRegularExpression line(u"^ *(\\S.*?) {3,}(\\d+)$"_s,
                                             QRegularExpression::MultilineOption);
        int sections = 0;
        const QString contents = textOf(1);
        for (auto match = line.globalMatch(contents); match.hasNext(); ++sections) {
            const auto section = match.next();
            QVERIFY2(textOf(section.captured(2).toInt()).contains(section.captured(1)),
                     qPrintable(section.captured()));
        }
        QCOMPARE(sections, structureOf(markdownOf(u"manual_en_US"_s)).count(u"##"_s));
    }
};

QTEST_GUILESS_MAIN(ManualsTest)
#include "tst_manuals.moc"
