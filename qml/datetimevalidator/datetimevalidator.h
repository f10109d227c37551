#pragma once

#include <QValidator>
#include <QtQml/qqmlregistration.h>

/// Accepts dates and times in a format of fixed width, by default "yyyy-MM-dd hh:mm:ss". A text in this
/// format with an existing date and time is Acceptable. A text that has other signs than digits and the
/// separators of the format, or is longer than the format, is Invalid. Any other text, such as an incomplete
/// one or "2024-02-31", is Intermediate, so that the user can edit single digits.
class DateTimeValidator : public QValidator
{
    Q_OBJECT
    QML_ELEMENT
    /// Consists of y, M, d, h, m, s and separators; date and time are separated by a space. A part with "y"
    /// is a date, one without it a time.
    Q_PROPERTY(QString format READ format WRITE setFormat NOTIFY formatChanged)
public:
    explicit DateTimeValidator(QObject *parent = nullptr) : QValidator(parent) {}

    [[nodiscard]] QString format() const { return m_format; }
    void setFormat(const QString &format);

    /// Does not change `text`; `position` is not used.
    State validate(QString &text, int &position) const override;

Q_SIGNALS:
    void formatChanged();

private:
    [[nodiscard]] bool isComplete(const QString &text) const;

    QString m_format = QStringLiteral("yyyy-MM-dd hh:mm:ss");
};
