// The translation files: every string of the sources is translated, with its placeholders.
#include "app/languages.h"
#include "tests/datatable.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

/// A string of the sources with its translation.
struct Message
{
    QString context;
    QString source;
    QString type;             ///< "unfinished", "vanished" or "obsolete"; empty for a complete translation
    bool hasNumber = false;   ///< the translation has plural forms
    QStringList translations; ///< the plural forms, otherwise one string
};

Message readMessage(QXmlStreamReader &reader, const QString &context)
{
    Message message{.context = context,
                    .source = {},
                    .type = {},
                    .hasNumber = reader.attributes().hasAttribute("numerus"_L1),
                    .translations = {}};
    while (reader.readNextStartElement()) {
        if (reader.name() == u"source") {
            message.source = reader.readElementText();
        } else if (reader.name() != u"translation") {
            reader.skipCurrentElement();
        } else {
            message.type = reader.attributes().value("type"_L1).toString();
            if (!message.hasNumber) {
                message.translations.append(reader.readElementText());
                continue;
            }
            while (reader.readNextStartElement())
                message.translations.append(reader.readElementText());
        }
    }
    return message;
}

QList<Message> messagesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    QList<Message> messages;
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"name")
            context = reader.readElementText();
        else if (reader.name() == u"message")
            messages.append(readMessage(reader, context));
    }
    return reader.hasError() ? QList<Message>() : messages;
}

/// The placeholders of a string in alphabetical order: "%1", "%n", "{n}" and tags.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression pattern(u"%(?:L?\\d+|n)|\\{[^{}]*\\}|</?[a-z][^<>]*>"_s);
    QStringList found;
    for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

/// Without the number: one of the plural forms may express it in words.
QStringList withoutNumber(QStringList found)
{
    found.removeAll(u"%n"_s);
    return found;
}

/// The problem of a translation; empty without one.
QString faultOf(const Message &message)
{
    if (!message.type.isEmpty())
        return message.type;
    for (const QString &translation : message.translations) {
        if (translation.trimmed().isEmpty())
            return u"empty"_s;
        if (withoutNumber(placeholders(translation)) != withoutNumber(placeholders(message.source)))
            return u"has other placeholders than the source"_s;
        if (!message.hasNumber && translation.contains(u"%n"_s))
            return u"has a number"_s;
        if (translation.count(u'\n') != message.source.count(u'\n'))
            return u"has other line breaks than the source"_s;
    }
    if (message.source.contains(u"%n"_s) && !message.translations.constLast().contains(u"%n"_s))
        return u"the last plural form lacks %n"_s;
    return {};
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT
private:
    QTemporaryDir m_folder;

    [[nodiscard]] QString copyOf(QLatin1StringView code) const { return m_folder.filePath(code + ".ts"_L1); }

private Q_SLOTS:
    /// Updates copies of the files from the sources: new strings are unfinished, removed ones are vanished.
    void initTestCase()
    {
        const QDir sources(QStringLiteral(SOURCES));
        QStringList arguments = {"-silent", "-locations", "none", "-extensions", "cpp,h,qml"};
        const QStringList folders = QStringLiteral(STRING_FOLDERS).split(u' ');
        for (const QString &folder : folders)
            arguments.append(sources.filePath(folder));
        arguments.append(u"-ts"_s);
        for (const QLatin1StringView code : languageCodes) {
            QVERIFY2(QFile::copy(sources.filePath("translations/"_L1 + code + ".ts"_L1), copyOf(code)),
                     code.data());
            arguments.append(copyOf(code));
        }
        QCOMPARE(QProcess::execute(QStringLiteral(LUPDATE), arguments), 0);
    }

    void everyStringIsTranslated_data()
    {
        const auto row = dataTable<QLatin1StringView>({"code"});
        for (const QLatin1StringView code : languageCodes)
            row(code.data(), code);
    }

    void everyStringIsTranslated()
    {
        QFETCH(QLatin1StringView, code);
        const QList<Message> messages = messagesOf(copyOf(code));
        QVERIFY2(messages.size() > 1000, "lupdate has not read the sources");
        QStringList faults;
        for (const Message &message : messages) {
            if (const QString fault = faultOf(message); !fault.isEmpty())
                faults.append(u"%1, \"%2\": %3"_s.arg(message.context, message.source, fault));
        }
        QVERIFY2(faults.isEmpty(),
                 qPrintable(u"build update_translations and fill in the file:\n"_s + faults.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
