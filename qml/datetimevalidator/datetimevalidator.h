#pragma once

#include <QValidator>
#include <QtQml/qqmlregistration.h>

/// Accepts dates and times in a format of fixed width, by default "yyyy-MM-dd hh:mm:ss". Incomplete or
/// invalid text of digits and separators is Intermediate, so that the user can edit single digits. Longer
/// text is Invalid.
class DateTimeValidator : public QValidator
{
    Q_OBJECT
    QML_ELEMENT
    /// Consists of y, M, d, h, m, s and separators; date and time are separated by a space.
    Q_PROPERTY(QString format READ format WRITE setFormat NOTIFY formatChanged)
public:
    explicit DateTimeValidator(QObject *parent = nullptr) : QValidator(parent) {}

    [[nodiscard]] QString format() const { return m_format; }
    void setFormat(const QString &format);

    State validate(QString &text, int &position) const override;

Q_SIGNALS:
    void formatChanged();

private:
    [[nodiscard]] bool isComplete(const QString &text) const;

    QString m_format = QStringLiteral("yyyy-MM-dd hh:mm:ss");
};
