#pragma once

#include <QValidator>
#include <QtQml/qqmlregistration.h>

/// Accepts dates and times in one format of fixed width, "yyyy-MM-dd hh:mm:ss" unless another is set. Text of
/// digits and separators that is none, or none yet, is let stand: a field must be editable in its middle,
/// digit by digit.
class DateTimeValidator : public QValidator
{
    Q_OBJECT
    QML_ELEMENT
    /// Of the letters y, M, d, h, m and s and separators.
    Q_PROPERTY(QString format READ format WRITE setFormat NOTIFY formatChanged)
public:
    explicit DateTimeValidator(QObject *parent = nullptr) : QValidator(parent) {}

    [[nodiscard]] QString format() const { return m_format; }
    void setFormat(const QString &format);

    State validate(QString &text, int &position) const override;

Q_SIGNALS:
    void formatChanged();

private:
    [[nodiscard]] bool isWhole(const QString &text) const;

    QString m_format = QStringLiteral("yyyy-MM-dd hh:mm:ss");
};
