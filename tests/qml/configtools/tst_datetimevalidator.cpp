#include "qml/datetimevalidator/datetimevalidator.h"
#include "tests/datatable.h"

class TestDateTimeValidator : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void inputIsValidated_data()
    {
        const auto row = namedTable<QString, QString, int>({"format", "text", "state"});
        const QString moment = "yyyy-MM-dd hh:mm:ss";
        row(moment, "2024-02-29 23:59:59", QValidator::Acceptable);
        row(moment, "2024-03-31 02:30:00", QValidator::Acceptable); // skipped by some daylight saving times
        row(moment, "", QValidator::Intermediate);
        row(moment, "2024-02-2", QValidator::Intermediate);
        row(moment, "2024-0-29 23:59:59", QValidator::Intermediate); // a digit deleted in the middle
        row(moment, "2023-02-29 00:00:00", QValidator::Intermediate);
        row(moment, "2024-02-29 24:00:00", QValidator::Intermediate);
        row(moment, "-024-02-29 00:00:00", QValidator::Intermediate);
        row(moment, "2024-02-29 23:59:599", QValidator::Invalid);
        row(moment, "2024/02/29", QValidator::Invalid);
        row(moment, "yyyy-MM-dd hh:mm:ss", QValidator::Invalid);
        row(moment, "２０２４", QValidator::Invalid);
        row("hh:mm", "07:05", QValidator::Acceptable);
        row("hh:mm", "7:05", QValidator::Intermediate);
        row("hh:mm", "07:60", QValidator::Intermediate);
        row("hh:mm", "07-05", QValidator::Invalid);
    }

    void inputIsValidated()
    {
        QFETCH(QString, format);
        QFETCH(QString, text);
        DateTimeValidator validator;
        validator.setFormat(format);
        int position = 0;
        QTEST(int(validator.validate(text, position)), "state");
    }
};

QTEST_GUILESS_MAIN(TestDateTimeValidator)
#include "tst_datetimevalidator.moc"
